#include "mesh/inp_ElementUndefinedNodesError.h"

#include "support/inpM_Utils.h"

inp_ElementUndefinedNodesError::inp_ElementUndefinedNodesError(cow_List<int> const& elements)
    : inp_PrimException(inpM_Utils::FormatCollectedErrors(
          atr("The following elements reference one or more nodes that do not exist"), elements)),
      m_elements(elements) {}

inp_ElementUndefinedNodesError::inp_ElementUndefinedNodesError(cow_String const& instanceName,
                                                               cow_List<int> const& elements)
    : inp_PrimException(inpM_Utils::FormatCollectedErrors(
          atr("The following elements in instance %s reference one or more nodes that do not "
              "exist",
              instanceName),
          elements)),
      m_elements(elements),
      m_instanceName(instanceName) {}
