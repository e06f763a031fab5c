#pragma once
// The references of a flat deck, once its mesh is parts: a set or label
// named outside every part is rewritten to the scoped form of the instance
// that holds it ("PART-1-1.7", "PART-1-1.TOP"); a set that no part holds is
// an assembly set and keeps its name. References inside a part or an
// instance stay as they are.

#include "assembly/inp_SetFixupVisitor.h"
#include "pipeline/inp_ModelParameters.h"

class inp_FakePartSetVisitor : public inp_SetFixupVisitor {
  public:
    struct Options {
        // References are scoped by the instance name the maps use ("I.7"),
        // rather than by a part name that its one instance completes
        // ("PART-1" gives "PART-1-1.7").
        bool scopedByInstance = false;
        // A symmetric model generation may name labels of the mirrored
        // model, which the id maps never hold: no error for them.
        bool symmetricModelGeneration = false;
        // The deck used parts, assemblies or instances of its own.
        bool featureEnhanced = false;

        // The facts as the model parameters of the deck give them.
        static Options For(inp_ModelParameters const& parameters, bool scopedByInstance) {
            return {scopedByInstance, parameters.isSymModelGen(), parameters.isFeatureEnhanced()};
        }
    };

    // The sets and id maps are nested by part (or instance).
    inp_FakePartSetVisitor(inpM_IdMap const& nodeIds, inpM_IdMap const& elementIds,
                           inpM_SetMap const& nodeSets, inpM_SetMap const& elementSets,
                           Options options);
    // Without sets: only labels are scoped.
    inp_FakePartSetVisitor(inpM_IdMap const& nodeIds, inpM_IdMap const& elementIds,
                           Options options);

    cow_String FixupIdOrSet(inp_Keyword const& keyword, cow_String const& datum,
                            inpM_SetMap const& sets, inpM_IdMap const& ids,
                            cow_String const& assemblyName, cow_String const& instanceName,
                            cow_String const& partName, inp_SetType type,
                            cow_String const& parameterName) override;

    // Initial conditions are rewritten only for the pre-processor or for a
    // deck that used parts of its own; otherwise they pass untouched.
    void VisitInitialConditions(inp_Keyword& keyword) override;

    // name "." datum when scoped by instance, else name "-1." datum.
    cow_String PrependPartNameToData(cow_String const& name, cow_String const& datum) const;

  private:
    cow_String scopedSet(cow_String const& datum, inpM_SetMap const& sets) const;
    cow_String scopedLabel(inp_Keyword const& keyword, cow_String const& datum,
                           inpM_IdMap const& ids);

    Options m_options;
};
