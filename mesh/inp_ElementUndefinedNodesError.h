#pragma once
#include "deck/inp_Exceptions.h"
#include "support/cow_List.h"
#include "support/cow_String.h"

// Elements whose connectivity names nodes that a renumbering of the nodes
// does not know. Carries the element labels, ascending, and the instance the
// elements belong to (empty for the assembly or part level itself), so that
// the stage that renumbered can report them; the message lists them in the
// layout of every collected error.
class inp_ElementUndefinedNodesError : public inp_PrimException {
  public:
    explicit inp_ElementUndefinedNodesError(cow_List<int> const& elements);
    inp_ElementUndefinedNodesError(cow_String const& instanceName, cow_List<int> const& elements);

    cow_List<int> const& Elements() const noexcept { return m_elements; }
    cow_String const& InstanceName() const noexcept { return m_instanceName; }

    INP_EXCEPTION_COPY_AND_PROPAGATE(inp_ElementUndefinedNodesError)

  private:
    cow_List<int> m_elements;
    cow_String m_instanceName;
};
