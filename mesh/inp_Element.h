#pragma once
#include <cstdint>

#include "support/cow_List.h"
#include "support/cow_String.h"
#include "support/mem_Allocation.h"

// One element of the model: its type, its connectivity and the few numbers
// that element generation needs later. Meshes hold millions of these, so the
// connectivity is one exact-size array per element and the small counts are
// 16 bits wide.
//
// A zero in the connectivity is a node position left open. The allocation
// operators route records and arrays through the system heap; a failed
// allocation raises inp_MemoryException.
class inp_Element : public mem_AllocationOperators {
  public:
    // The widths of the stored counts. Values outside them are a fault of the
    // caller (an assertion), never a silent truncation.
    static constexpr int kMaxNodes = INT16_MAX;
    // What a connectivity holds where it names no node: an open position,
    // and the value standing for an empty field of a connector.
    static constexpr int kOpenPosition = 0;
    static constexpr int kEmptyConnectorField = -91440;

    inp_Element() noexcept = default;
    inp_Element(inp_Element const& other);
    inp_Element(inp_Element&& other) noexcept;
    // Copies `count` entries of `nodes`.
    inp_Element(cow_String type, int count, int const* nodes, int numNodesDefined, int nodeOffset,
                int solidElementNumbering);
    inp_Element(cow_String type, cow_List<int> const& nodes, int numNodesDefined, int nodeOffset,
                int solidElementNumbering);
    // A superelement: the FILE parameter travels with it; the offset and the
    // gasket numbering are 0.
    inp_Element(cow_String type, cow_String file, cow_List<int> const& nodes, int numNodesDefined);
    // Keeps the own array when the lengths are equal, frees it when the new
    // length is 0, and reallocates otherwise.
    inp_Element& operator=(inp_Element const& other);
    inp_Element& operator=(inp_Element&& other) noexcept;
    ~inp_Element();

    cow_String const& type() const noexcept { return m_type; }
    cow_String const& file() const noexcept { return m_file; }
    void setFile(cow_String file) noexcept { m_file = static_cast<cow_String&&>(file); }

    // The connectivity, numNodesPerElement() entries; null when there are none.
    int const* nodes() const noexcept { return m_nodes; }
    // Writable in place, e.g. for renumbering or for labels of generated nodes.
    int* nodes() noexcept { return m_nodes; }
    int numNodesPerElement() const noexcept { return m_numNodesPerElement; }
    int solidElementNumbering() const noexcept { return m_solidElementNumbering; }
    int numNodesDefined() const noexcept { return m_numNodesDefined; }
    int nodeOffset() const noexcept { return m_nodeOffset; }

    // The connectivity as a list, for callers that work on lists.
    cow_List<int> NodeList() const;

    friend bool operator==(inp_Element const& a, inp_Element const& b) noexcept;

  private:
    void setCounts(int numNodesDefined, int nodeOffset, int solidElementNumbering);
    static int* newNodeArray(int count);
    int* copyOfNodes() const;
    void allocateNodes(int count);
    void freeNodes() noexcept;

    cow_String m_type;
    cow_String m_file;
    int* m_nodes = nullptr;
    int16_t m_numNodesPerElement = 0;
    int16_t m_solidElementNumbering = 0;
    int16_t m_numNodesDefined = 0;
    int32_t m_nodeOffset = 0;
};
