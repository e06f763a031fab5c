#pragma once
// The column layouts of distribution tables: the kinds of value a
// *DISTRIBUTION TABLE declares for its columns, the layouts each use of a
// distribution requires (by a type number), and the deck's own tables by
// name, so that a use can be validated against a table. One per thread;
// the deck's tables are those of the deck the thread read last.

#include <map>
#include <vector>

#include "support/cow_String.h"
#include "support/thr_Singleton.h"

// The kind of value one column holds.
enum inp_distTableLabelEnum : int {
    inp_distUNDEFINED = 0,
    inp_distANGLE = 1,
    inp_distCOORD3D = 2,
    inp_distDENSITY = 3,
    inp_distEXPANSION = 4,
    inp_distLENGTH = 5,
    inp_distMODULUS = 6,
    inp_distRATIO = 7,
    inp_distSHELLSTIFF1 = 8,
    inp_distSHELLSTIFF2 = 9,
    inp_distSHELLSTIFF3 = 10,
};

// The layouts a use requires. The numbers are the contract; the names say
// which use each serves.
enum inp_distTableTypeEnum : int {
    inp_distShellThickness = 2,
    inp_distShellOffset = 3,
    inp_distShellGeneralStiffness = 4,
    inp_distMembraneThickness = 5,
    inp_distOrientationAngle = 6,
    inp_distSolidThickness = 7,
    inp_distOrientationPoints = 102,
    inp_distOrientationRotation = 103,
    inp_distElasticIsotropic = 202,
    inp_distElasticOrthotropic = 203,
    inp_distElasticAnisotropic = 204,
    inp_distElasticLamina = 205,
    inp_distElasticEngineeringConstants = 206,
    inp_distExpansionIsotropic = 207,
    inp_distExpansionOrthotropic = 208,
    inp_distExpansionAnisotropic = 209,
    inp_distDensity = 210,
};

// One layout: its columns, the numbers they take in all, and the kind of
// each column.
struct inp_distTable {
    int columns = 0;
    int size = 0;
    std::vector<inp_distTableLabelEnum> labels;
};

class inp_DistributionTableDB : public thr_ThreadSingleton<inp_DistributionTableDB> {
  public:
    // What validateDistTable answers.
    enum Validation : int {
        kFits = 0,
        kNoLayoutOfType = 1,
        kNoTableOfName = 2,
        kColumnCountDiffers = 3,
        kColumnKindDiffers = 4,
    };

    inp_DistributionTableDB();

    // The kind named by `text`, in any case; inp_distUNDEFINED if unknown.
    int getTableLabelID(cow_String const& text) const;
    // The numbers a column of the kind takes; 0 for an unknown kind.
    int getdistTableLabelEnumSize(inp_distTableLabelEnum label) const;
    // The text of a kind, as decks write it; empty for an unknown one.
    static char const* LabelText(inp_distTableLabelEnum label);

    // Registers a table of the deck under its name, blanks around it
    // trimmed. A name already known changes nothing; true then.
    bool addDistTables(cow_String const& name, int columns, int size,
                       std::vector<inp_distTableLabelEnum> const& labels);
    // The numbers a row of the named table takes, and its columns; `found`
    // is 0 for an unknown name, 1 otherwise.
    int getDistTableSize(cow_String const& name, int& found) const;
    int getNumComponentsDistTable(cow_String const& name, int& found) const;
    // Forgets the deck's tables, before the next deck's are registered.
    void ClearDeckTables();

    // Whether the named table has the layout `type` requires (a Validation).
    int validateDistTable(inp_distTableTypeEnum type, cow_String const& name) const;

  private:
    inp_distTable const* deckTable(cow_String const& name) const;

    std::map<int, inp_distTable> m_layouts;  // built-in, by type (negative types too)
    std::map<cow_String, int> m_deckTableNumbers;
    std::vector<inp_distTable> m_deckTables;  // by running number
};
