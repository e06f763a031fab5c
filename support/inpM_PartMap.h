#pragma once
#include "support/cow_String.h"
#include "support/inpM_IdMap.h"
#include "support/inpM_InstanceMap.h"
#include "support/inpM_SetMap.h"
#include "support/inpM_SurfaceMap.h"

// The finished model of a job, handed to the caller and given back to a
// continuation job: the sets and surfaces, the renumbering of nodes and
// elements, and the part of each instance. Copies share everything.
class inpM_PartMap {
  public:
    inpM_PartMap() = default;

    inpM_SetMap const& ConstGetNsets() const noexcept { return m_nsets; }
    inpM_SetMap const& ConstGetElsets() const noexcept { return m_elsets; }
    inpM_SurfaceMap const& ConstGetSurfaceMap() const noexcept { return m_surfaces; }
    inpM_IdMap const& ConstGetNodeIdMap() const noexcept { return m_nodeIdMap; }
    inpM_IdMap const& ConstGetElemIdMap() const noexcept { return m_elemIdMap; }
    // Instance name to part name.
    inpM_InstanceMap<cow_String> const& ConstGetInstancePartNames() const noexcept {
        return m_instancePartNames;
    }
    // The ids were renumbered: the id maps translate from the deck's ids.
    bool IsRenumbered() const noexcept { return m_renumbered; }
    // The model is written in parts, instances and an assembly.
    bool FeatureEnhanced() const noexcept { return m_featureEnhanced; }
    // The parts and instances were made up for a flat model.
    bool IsFakePartModel() const noexcept { return m_fakePartModel; }

    inpM_SetMap& GetNsets() noexcept { return m_nsets; }
    inpM_SetMap& GetElsets() noexcept { return m_elsets; }
    inpM_SurfaceMap& GetSurfaceMap() noexcept { return m_surfaces; }
    inpM_IdMap& GetNodeIdMap() noexcept { return m_nodeIdMap; }
    inpM_IdMap& GetElemIdMap() noexcept { return m_elemIdMap; }
    inpM_InstanceMap<cow_String>& GetInstancePartNames() noexcept { return m_instancePartNames; }
    void SetRenumbered(bool renumbered) noexcept { m_renumbered = renumbered; }
    void SetFeatureEnhanced(bool enhanced) noexcept { m_featureEnhanced = enhanced; }
    void SetFakePartModel(bool fake) noexcept { m_fakePartModel = fake; }

    // Drops the internal node and element sets of every level. The system
    // made them for the model as it was; a job that builds more model from
    // it (a symmetric model generation) makes its own, and old ones of the
    // same names would stand in their way.
    void RemoveRedundantInternalSets();

  private:
    inpM_SetMap m_nsets;
    inpM_SetMap m_elsets;
    inpM_SurfaceMap m_surfaces;
    inpM_IdMap m_nodeIdMap;
    inpM_IdMap m_elemIdMap;
    inpM_InstanceMap<cow_String> m_instancePartNames;
    bool m_renumbered = false;
    bool m_featureEnhanced = false;
    bool m_fakePartModel = false;
};
