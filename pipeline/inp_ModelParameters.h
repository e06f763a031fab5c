#pragma once
// Sizes and facts of a model that a consumer needs before it sees the mesh:
// the largest counts of solution-dependent variables, temperature points and
// integration points any keyword asks for, which kinds of model and step the
// deck holds, the sizes of its distribution tables, and which of its
// orientations are rectangular. Gathered once by inp_ModelParameterVisitor
// from the expanded deck; a plain value, copied at will.
//
// These are not the deck's *PARAMETER feature, which expansion alone knows.

#include "support/cow_Map.h"
#include "support/cow_String.h"

class inp_ModelParameters {
  public:
    int getNumDepVars() const { return m_numDepVars; }
    int getNumTempPts() const { return m_numTempPts; }
    int getNumGaussPts() const { return m_numGaussPts; }
    bool isSymModelGen() const { return m_symModelGen; }
    bool hasTemperatureElms() const { return m_temperatureElements; }
    bool isImported() const { return m_imported; }
    bool hasStaticGeneralStep() const { return m_staticGeneralStep; }
    bool hasImportedParts() const { return m_importedParts; }
    bool isFeatureEnhanced() const { return m_featureEnhanced; }
    // The size of the *DISTRIBUTION TABLE of this name; 0 for an unknown one.
    int getTableSize(cow_String const& name) const;
    // Whether the *ORIENTATION of this name is a rectangular system; false for
    // an unknown one.
    bool isCsysRectangular(cow_String const& name) const;

    // -- gathering: each count only ever rises ------------------------------
    void RaiseNumDepVars(int count) { raise(m_numDepVars, count); }
    void RaiseNumTempPts(int count) { raise(m_numTempPts, count); }
    void RaiseNumGaussPts(int count) { raise(m_numGaussPts, count); }
    void SetSymModelGen() { m_symModelGen = true; }
    void SetTemperatureElements() { m_temperatureElements = true; }
    void SetImported() { m_imported = true; }
    void SetStaticGeneralStep() { m_staticGeneralStep = true; }
    void SetImportedParts() { m_importedParts = true; }
    void SetFeatureEnhanced() { m_featureEnhanced = true; }
    void SetTableSize(cow_String const& name, int size) { m_tableSizes.Insert(name, size); }
    void SetCsysRectangular(cow_String const& name, bool rectangular) {
        m_rectangularSystems.Insert(name, rectangular ? 1 : 0);
    }

    cow_Map<cow_String, int> const& TableSizes() const { return m_tableSizes; }
    cow_Map<cow_String, int> const& RectangularSystems() const { return m_rectangularSystems; }

  private:
    static void raise(int& field, int count) {
        if (count > field) field = count;
    }

    int m_numDepVars = 1;
    int m_numTempPts = 1;
    int m_numGaussPts = 1;
    bool m_symModelGen = false;
    bool m_temperatureElements = false;
    bool m_imported = false;
    bool m_staticGeneralStep = false;
    bool m_importedParts = false;
    bool m_featureEnhanced = false;
    cow_Map<cow_String, int> m_tableSizes;
    cow_Map<cow_String, int> m_rectangularSystems;
};
