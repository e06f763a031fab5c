#include "mesh/inp_Element.h"

#include <algorithm>
#include <utility>

#include "deck/inp_Exceptions.h"
#include "support/ZELBasAssert.h"

namespace {

bool fitsInt16(int value) {
    return value >= INT16_MIN && value <= INT16_MAX;
}

// Meshes hold millions of records: one of eight nodes stays within a
// 72-byte request, an 80-byte heap block.
static_assert(sizeof(inp_Element) <= 72, "an element record has grown");

}  // namespace

inp_Element::inp_Element(inp_Element const& other)
    : m_type(other.m_type),
      m_file(other.m_file),
      m_solidElementNumbering(other.m_solidElementNumbering),
      m_numNodesDefined(other.m_numNodesDefined),
      m_nodeOffset(other.m_nodeOffset) {
    allocateNodes(other.m_numNodesPerElement);
    std::copy_n(other.nodes(), m_numNodesPerElement, nodes());
}

inp_Element::inp_Element(inp_Element&& other) noexcept
    : m_type(std::move(other.m_type)),
      m_file(std::move(other.m_file)),
      m_solidElementNumbering(other.m_solidElementNumbering),
      m_numNodesDefined(other.m_numNodesDefined),
      m_nodeOffset(other.m_nodeOffset) {
    stealNodes(other);
}

inp_Element::inp_Element(cow_String type, int count, int const* nodes, int numNodesDefined,
                         int nodeOffset, int solidElementNumbering)
    : m_type(std::move(type)) {
    ZELBAS_ASSERT(nodes != nullptr || count == 0);
    setCounts(numNodesDefined, nodeOffset, solidElementNumbering);
    allocateNodes(count);
    std::copy_n(nodes, m_numNodesPerElement, this->nodes());
}

inp_Element::inp_Element(cow_String type, cow_List<int> const& nodes, int numNodesDefined,
                         int nodeOffset, int solidElementNumbering)
    : m_type(std::move(type)) {
    setCounts(numNodesDefined, nodeOffset, solidElementNumbering);
    allocateNodes(nodes.Length());
    if (m_numNodesPerElement > 0) nodes.GetCArray(this->nodes());
}

inp_Element::inp_Element(cow_String type, cow_String file, cow_List<int> const& nodes,
                         int numNodesDefined)
    : inp_Element(std::move(type), nodes, numNodesDefined, 0, 0) {
    m_file = FileName(std::move(file));
}

cow_String const& inp_Element::FileName::Text() const noexcept {
    static cow_String const none;
    return m_text != nullptr ? *m_text : none;
}

inp_Element& inp_Element::operator=(inp_Element const& other) {
    if (this == &other) return *this;
    if (other.m_numNodesPerElement != m_numNodesPerElement) {
        // Make the new room before anything changes, so that a failure leaves
        // this record whole.
        inp_Element room;
        room.allocateNodes(other.m_numNodesPerElement);
        freeNodes();
        stealNodes(room);
    }
    std::copy_n(other.nodes(), m_numNodesPerElement, nodes());
    m_type = other.m_type;
    m_file = other.m_file;
    m_solidElementNumbering = other.m_solidElementNumbering;
    m_numNodesDefined = other.m_numNodesDefined;
    m_nodeOffset = other.m_nodeOffset;
    return *this;
}

inp_Element& inp_Element::operator=(inp_Element&& other) noexcept {
    if (this == &other) return *this;
    freeNodes();
    stealNodes(other);
    m_type = std::move(other.m_type);
    m_file = std::move(other.m_file);
    m_solidElementNumbering = other.m_solidElementNumbering;
    m_numNodesDefined = other.m_numNodesDefined;
    m_nodeOffset = other.m_nodeOffset;
    return *this;
}

inp_Element::~inp_Element() {
    freeNodes();
}

cow_List<int> inp_Element::NodeList() const {
    cow_List<int> list;
    list.SetFromArray(nodes(), m_numNodesPerElement);
    return list;
}

bool operator==(inp_Element const& a, inp_Element const& b) noexcept {
    return a.m_type == b.m_type && a.file() == b.file() &&
           a.m_numNodesPerElement == b.m_numNodesPerElement &&
           a.m_solidElementNumbering == b.m_solidElementNumbering &&
           a.m_numNodesDefined == b.m_numNodesDefined && a.m_nodeOffset == b.m_nodeOffset &&
           std::equal(a.nodes(), a.nodes() + a.m_numNodesPerElement, b.nodes());
}

void inp_Element::setCounts(int numNodesDefined, int nodeOffset, int solidElementNumbering) {
    ZELBAS_ASSERT(numNodesDefined >= 0 && numNodesDefined <= kMaxNodes);
    ZELBAS_ASSERT(fitsInt16(solidElementNumbering));
    m_numNodesDefined = static_cast<int16_t>(numNodesDefined);
    m_nodeOffset = nodeOffset;
    m_solidElementNumbering = static_cast<int16_t>(solidElementNumbering);
}

void inp_Element::allocateNodes(int count) {
    ZELBAS_ASSERT(count >= 0 && count <= kMaxNodes);
    if (count > kInlineNodes) {
        void* const block = mem_Malloc(static_cast<size_t>(count) * sizeof(int));
        if (!block) throw inp_MemoryException();
        m_storage.heapNodes = static_cast<int*>(block);
    }
    m_numNodesPerElement = static_cast<int16_t>(count);
}

void inp_Element::freeNodes() noexcept {
    if (!isInline()) mem_Free(m_storage.heapNodes);
    m_storage.heapNodes = nullptr;
    m_numNodesPerElement = 0;
}

void inp_Element::stealNodes(inp_Element& other) noexcept {
    m_storage = other.m_storage;  // the pointer, or the nodes themselves
    m_numNodesPerElement = std::exchange(other.m_numNodesPerElement, 0);
    other.m_storage.heapNodes = nullptr;
}
