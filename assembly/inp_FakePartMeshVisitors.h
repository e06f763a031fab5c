#pragma once
// The mesh readers of a flat deck: the element and node visitors, with every
// keyword read into the scope of the pseudo part "FAKE" (inp_Types::fakeName),
// from which the fake part visitor cuts the generated parts.

#include "mesh/inp_ElementVisitor.h"
#include "mesh/inp_NodeVisitor.h"

class inp_FakePartElementVisitor : public inp_ElementVisitor {
  public:
    // `elementSets`: sets of an earlier job that *ELGEN and *ELCOPY may name.
    // `generate`: generators make elements, as inp_ElementVisitor's
    // reportMissingMaster.
    inp_FakePartElementVisitor(inpM_SetMap const& elementSets, bool generate);
    ~inp_FakePartElementVisitor() override;

    void VisitList(cow_List<inp_Keyword>& keywords) override;
};

class inp_FakePartNodeVisitor : public inp_NodeVisitor {
  public:
    // Element-based node sets read `elements` through `elementSets`;
    // `nodeSets` are those of an earlier job. `readCoordinates` as for
    // inp_NodeVisitor.
    inp_FakePartNodeVisitor(inpM_InstanceMap<inp_MapInt2Element> const& elements,
                            inpM_SetMap const& elementSets, inpM_SetMap const& nodeSets,
                            bool readCoordinates);
    ~inp_FakePartNodeVisitor() override;

    void VisitList(cow_List<inp_Keyword>& keywords) override;
};
