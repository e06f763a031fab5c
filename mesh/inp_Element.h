#pragma once
#include <cstdint>
#include <utility>

#include "support/cow_List.h"
#include "support/cow_String.h"
#include "support/mem_Allocation.h"

// One element of the model: its type, its connectivity and the few numbers
// that element generation needs later. Meshes hold millions of these, so the
// small counts are 16 bits wide, and the connectivity of up to
// kInlineNodes nodes (the bricks, shells, beams and springs that make up
// most meshes) lives in the record itself: such an element is one heap
// block. A longer connectivity is one exact-size array beside the record.
//
// A zero in the connectivity is a node position left open. The allocation
// operators route records and arrays through the system heap; a failed
// allocation raises inp_MemoryException.
class inp_Element : public mem_AllocationOperators {
  public:
    // The widths of the stored counts. Values outside them are a fault of the
    // caller (an assertion), never a silent truncation.
    static constexpr int kMaxNodes = INT16_MAX;
    // Connectivities up to this length are kept in the record.
    static constexpr int kInlineNodes = 8;
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
    // Keeps the own room when the lengths are equal, and makes new room
    // otherwise.
    inp_Element& operator=(inp_Element const& other);
    inp_Element& operator=(inp_Element&& other) noexcept;
    ~inp_Element();

    cow_String const& type() const noexcept { return m_type; }
    cow_String const& file() const noexcept { return m_file.Text(); }
    void setFile(cow_String file) { m_file = FileName(static_cast<cow_String&&>(file)); }

    // The connectivity, numNodesPerElement() entries; null when there are none.
    int const* nodes() const noexcept {
        if (m_numNodesPerElement == 0) return nullptr;
        return isInline() ? m_storage.inlineNodes : m_storage.heapNodes;
    }
    // Writable in place, e.g. for renumbering or for labels of generated nodes.
    int* nodes() noexcept { return const_cast<int*>(std::as_const(*this).nodes()); }
    int numNodesPerElement() const noexcept { return m_numNodesPerElement; }
    int solidElementNumbering() const noexcept { return m_solidElementNumbering; }
    int numNodesDefined() const noexcept { return m_numNodesDefined; }
    int nodeOffset() const noexcept { return m_nodeOffset; }

    // The connectivity as a list, for callers that work on lists.
    cow_List<int> NodeList() const;

    friend bool operator==(inp_Element const& a, inp_Element const& b) noexcept;

  private:
    bool isInline() const noexcept { return m_numNodesPerElement <= kInlineNodes; }
    void setCounts(int numNodesDefined, int nodeOffset, int solidElementNumbering);
    // Room for `count` nodes (uninitialised), in the record or on the heap;
    // the old room must have been freed. Throws inp_MemoryException.
    void allocateNodes(int count);
    void freeNodes() noexcept;
    // Takes over the nodes of `other`, which is left without any.
    void stealNodes(inp_Element& other) noexcept;

    // The FILE of a superelement, held apart: the other elements, nearly all
    // of them, keep a null pointer where a string would take twice the room,
    // which brings a record of eight nodes into a smaller heap block.
    class FileName {
      public:
        FileName() noexcept = default;
        explicit FileName(cow_String text)
            : m_text(text.IsEmpty() ? nullptr : new cow_String(static_cast<cow_String&&>(text))) {}
        FileName(FileName const& other)
            : m_text(other.m_text ? new cow_String(*other.m_text) : nullptr) {}
        FileName(FileName&& other) noexcept : m_text(other.m_text) { other.m_text = nullptr; }
        FileName& operator=(FileName other) noexcept {
            std::swap(m_text, other.m_text);
            return *this;
        }
        ~FileName() { delete m_text; }
        cow_String const& Text() const noexcept;

      private:
        cow_String* m_text = nullptr;
    };

    cow_String m_type;
    FileName m_file;
    union Storage {
        int* heapNodes;
        int inlineNodes[kInlineNodes];
    } m_storage{nullptr};
    int16_t m_numNodesPerElement = 0;
    int16_t m_solidElementNumbering = 0;
    int16_t m_numNodesDefined = 0;
    int32_t m_nodeOffset = 0;
};
