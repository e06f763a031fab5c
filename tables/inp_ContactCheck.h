#pragma once
// One combination an explicit job may not have: contact field output for a
// contact pair set that holds a node-based surface spanning several
// instances. Read from a finished keyword tree and the assembly's
// surfaces; the one error goes straight to the thread's sink, once for each
// step that has the combination.
//
// A contact pair set is named by CPSET on *CONTACT PAIR and *CONTACT
// OUTPUT; without it, the name kUniversalSet stands for all pairs at once.

#include "deck/inp_Keyword.h"
#include "support/cow_List.h"
#include "support/cow_String.h"
#include "support/inpM_SurfaceMap.h"

class inp_ContactCheck {
  public:
    static constexpr char const* kUniversalSet = "wren_universal";

    inp_ContactCheck(inpM_SurfaceMap const& assemblySurfaces, cow_List<inp_Keyword> const& tree);

    // `universalOutput`: a deck without any *OUTPUT gets the default output,
    // which covers every contact pair.
    void PerformCheck(bool universalOutput);

    // Some step begins with an explicit procedure.
    bool IsExplicitJob() const;
    // Gathers the node-based surfaces over several instances; true if any.
    bool HasCrossInstanceNodeBasedSurfaces();
    // An *OUTPUT at any depth.
    static bool InputContainsOutputKeywords(cow_List<inp_Keyword> const& keywords);
    void CheckIndividualStep(cow_List<inp_Keyword> const& suboptions);
    // *DYNAMIC TEMPERATURE-DISPLACEMENT, or *DYNAMIC with EXPLICIT.
    static bool IsExplicitKeyword(inp_Keyword const& keyword);
    void FindActiveCPSETs(cow_List<inp_Keyword> const& suboptions);
    void FindOutputCPSETs(cow_List<inp_Keyword> const& suboptions);
    void CheckForAndAppendDefaultOutput(inp_Keyword const& output);
    // The string items of the data: the surfaces a pair names.
    static cow_List<cow_String> GrabAssySurfaceNamesFromData(inp_Keyword const& keyword);

    cow_List<cow_String> const& CrossInstanceSurfaces() const { return m_crossInstanceSurfaces; }
    cow_List<cow_String> const& ActiveSets() const { return m_activeSets; }
    cow_List<cow_String> const& OutputSets() const { return m_outputSets; }

  private:
    static cow_String setNameOf(inp_Keyword const& keyword);

    inpM_SurfaceMap m_surfaces;
    cow_List<inp_Keyword> m_tree;
    cow_List<cow_String> m_crossInstanceSurfaces;
    cow_List<cow_String> m_activeSets;
    cow_List<cow_String> m_outputSets;
};
