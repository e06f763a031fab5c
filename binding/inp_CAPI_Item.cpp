#include "binding/inp_CAPI_Item.h"

#include <cstddef>
#include <cstdio>
#include <cstring>
#include <type_traits>

#include "deck/inp_Item.h"
#include "deck/inp_Types.h"
#include "support/ZELBasAssert.h"
#include "support/aio_Stream.h"
#include "support/cow_String.h"
#include "support/mem_Allocation.h"

// The layout callers rely on, and the proof that the C++ records are the C ones.
static_assert(sizeof(inp_CAPI_Item) == 32);
static_assert(offsetof(inp_CAPI_Item, itemType) == 0);
static_assert(offsetof(inp_CAPI_Item, ival) == 4);
static_assert(offsetof(inp_CAPI_Item, bval) == 8);
static_assert(offsetof(inp_CAPI_Item, dval) == 16);
static_assert(offsetof(inp_CAPI_Item, sval) == 24);
static_assert(sizeof(inp_CAPI_paramKeyValue) == 40);
static_assert(offsetof(inp_CAPI_paramKeyValue, key) == 0);
static_assert(offsetof(inp_CAPI_paramKeyValue, value) == 8);
static_assert(std::is_standard_layout_v<inp_CAPI_OwnedItem>);
static_assert(std::is_standard_layout_v<inp_CAPI_OwnedParamKeyValue>);
static_assert(sizeof(inp_CAPI_OwnedItem) == sizeof(inp_CAPI_Item));
static_assert(sizeof(inp_CAPI_OwnedParamKeyValue) == sizeof(inp_CAPI_paramKeyValue));
static_assert(int{inp_CAPI_INTEGER} == int{inp_Types::inp_INTEGER} &&
              int{inp_CAPI_BOOLEAN} == int{inp_Types::inp_BOOLEAN} &&
              int{inp_CAPI_REAL} == int{inp_Types::inp_REAL} &&
              int{inp_CAPI_STRING} == int{inp_Types::inp_STRING} &&
              int{inp_CAPI_NONE} == int{inp_Types::inp_NONE});

namespace {

int s_traceLevel = 0;

void trace(char const* what, void const* record, int itemType) {
    if (s_traceLevel <= 0) return;
    char line[160];
    std::snprintf(line, sizeof line, "inp_ParserCAPI %s %p type=%s\n", what, record,
                  inp_CAPI_TypeName(itemType));
    aio_cerr().print(line);
}

// A copy the caller may read as a C string. A failed allocation doesn't stop
// the parse: the record goes without its text.
char* duplicate(char const* text, size_t length) noexcept {
    char* copy = static_cast<char*>(mem_Malloc(length + 1));
    if (!copy) {
        aio_cerr().print("ERROR - inp_ParserCAPI could not allocate a string\n");
        return nullptr;
    }
    std::memcpy(copy, text, length);
    copy[length] = 0;
    return copy;
}

char* duplicate(cow_String const& text) noexcept {
    return duplicate(text.CStr(), static_cast<size_t>(text.Length()));
}

// Zero in every byte, padding included, so that no stale heap content
// reaches a caller who copies the record as raw memory.
void clear(inp_CAPI_Item& item, int itemType) noexcept {
    std::memset(&item, 0, sizeof item);
    item.itemType = itemType;
}

void setString(inp_CAPI_Item& item, cow_String const& text) noexcept {
    clear(item, inp_CAPI_STRING);
    item.sval = duplicate(text);
}

void setFromDeckItem(inp_CAPI_Item& item, inp_Item const& from) {
    switch (from.Type()) {
        case inp_Types::inp_INTEGER:
            clear(item, inp_CAPI_INTEGER);
            item.ival = from.AsInt();
            return;
        case inp_Types::inp_BOOLEAN:
            clear(item, inp_CAPI_BOOLEAN);
            item.bval = from.AsBool();
            return;
        case inp_Types::inp_REAL:
            clear(item, inp_CAPI_REAL);
            item.dval = from.AsDouble();
            return;
        case inp_Types::inp_STRING:
            setString(item, from.AsString());
            return;
        case inp_Types::inp_NONE:
            clear(item, inp_CAPI_NONE);
            return;
    }
    ZELBAS_ASSERT_TEXT(false, "\"Unknown data type\" == 0");
}

}  // namespace

char const* inp_CAPI_TypeName(int itemType) noexcept {
    switch (itemType) {
        case inp_CAPI_INTEGER:
            return "inp_INTEGER";
        case inp_CAPI_BOOLEAN:
            return "inp_BOOLEAN";
        case inp_CAPI_REAL:
            return "inp_REAL";
        case inp_CAPI_STRING:
            return "inp_STRING";
        case inp_CAPI_NONE:
            return "inp_NONE";
        default:
            return "unknown";
    }
}

void inp_CAPI_OwnedItem::SetTraceLevel(int level) noexcept {
    s_traceLevel = level;
}

void inp_CAPI_OwnedItem::Release(inp_CAPI_Item& item) noexcept {
    mem_Free(item.sval);
    clear(item, inp_CAPI_NONE);
}

void inp_CAPI_OwnedItem::CopyInto(inp_CAPI_Item& to, inp_CAPI_Item const& from) noexcept {
    std::memcpy(&to, &from, sizeof to);
    if (from.sval) to.sval = duplicate(from.sval, std::strlen(from.sval));
}

inp_CAPI_OwnedItem::inp_CAPI_OwnedItem() noexcept {
    clear(*this, inp_CAPI_NONE);
    trace("construct inp_CAPI_Item", this, itemType);
}

inp_CAPI_OwnedItem::inp_CAPI_OwnedItem(int value) noexcept {
    clear(*this, inp_CAPI_INTEGER);
    ival = value;
    trace("construct inp_CAPI_Item", this, itemType);
}

inp_CAPI_OwnedItem::inp_CAPI_OwnedItem(bool value) noexcept {
    clear(*this, inp_CAPI_BOOLEAN);
    bval = value;
    trace("construct inp_CAPI_Item", this, itemType);
}

inp_CAPI_OwnedItem::inp_CAPI_OwnedItem(double value) noexcept {
    clear(*this, inp_CAPI_REAL);
    dval = value;
    trace("construct inp_CAPI_Item", this, itemType);
}

inp_CAPI_OwnedItem::inp_CAPI_OwnedItem(char const* text) noexcept {
    clear(*this, text ? inp_CAPI_STRING : inp_CAPI_NONE);
    if (text) sval = duplicate(text, std::strlen(text));
    trace("construct inp_CAPI_Item", this, itemType);
}

inp_CAPI_OwnedItem::inp_CAPI_OwnedItem(cow_String const& text) noexcept {
    setString(*this, text);
    trace("construct inp_CAPI_Item", this, itemType);
}

inp_CAPI_OwnedItem::inp_CAPI_OwnedItem(inp_Item const& item) {
    setFromDeckItem(*this, item);
    trace("construct inp_CAPI_Item", this, itemType);
}

inp_CAPI_OwnedItem::inp_CAPI_OwnedItem(inp_CAPI_Item const& other) noexcept {
    CopyInto(*this, other);
    trace("copy inp_CAPI_Item", this, itemType);
}

inp_CAPI_OwnedItem::inp_CAPI_OwnedItem(inp_CAPI_OwnedItem const& other) noexcept
    : inp_CAPI_OwnedItem(static_cast<inp_CAPI_Item const&>(other)) {}

inp_CAPI_OwnedItem& inp_CAPI_OwnedItem::operator=(inp_CAPI_OwnedItem const& other) noexcept {
    if (this == &other) return *this;
    Release(*this);
    CopyInto(*this, other);
    trace("assign inp_CAPI_Item", this, itemType);
    return *this;
}

inp_CAPI_OwnedItem::~inp_CAPI_OwnedItem() {
    trace("destroy inp_CAPI_Item", this, itemType);
    mem_Free(sval);
}

inp_CAPI_OwnedParamKeyValue::inp_CAPI_OwnedParamKeyValue() noexcept {
    key = nullptr;
    clear(value, inp_CAPI_NONE);
    trace("construct inp_CAPI_paramKeyValue", this, value.itemType);
}

inp_CAPI_OwnedParamKeyValue::inp_CAPI_OwnedParamKeyValue(cow_String const& name,
                                                         inp_Item const& item) {
    key = nullptr;
    setFromDeckItem(value, item);
    key = duplicate(name);
    trace("construct inp_CAPI_paramKeyValue", this, value.itemType);
}

// The base is not copied member by member on purpose: the copy owns new
// strings, never the other record's.
// NOLINTNEXTLINE(bugprone-copy-constructor-init)
inp_CAPI_OwnedParamKeyValue::inp_CAPI_OwnedParamKeyValue(
    inp_CAPI_OwnedParamKeyValue const& other) noexcept {
    key = other.key ? duplicate(other.key, std::strlen(other.key)) : nullptr;
    inp_CAPI_OwnedItem::CopyInto(value, other.value);
    trace("copy inp_CAPI_paramKeyValue", this, value.itemType);
}

inp_CAPI_OwnedParamKeyValue& inp_CAPI_OwnedParamKeyValue::operator=(
    inp_CAPI_OwnedParamKeyValue const& other) noexcept {
    if (this == &other) return *this;
    mem_Free(key);
    inp_CAPI_OwnedItem::Release(value);
    key = other.key ? duplicate(other.key, std::strlen(other.key)) : nullptr;
    inp_CAPI_OwnedItem::CopyInto(value, other.value);
    trace("assign inp_CAPI_paramKeyValue", this, value.itemType);
    return *this;
}

inp_CAPI_OwnedParamKeyValue::~inp_CAPI_OwnedParamKeyValue() {
    trace("destroy inp_CAPI_paramKeyValue", this, value.itemType);
    mem_Free(key);
    mem_Free(value.sval);
}

// -- the text of a value, for callers ---------------------------------------------------------

namespace {

char s_textBuffer[80];
bool s_textBufferInUse = false;

// Holds the in-use flag for the length of one call, however it ends.
class TextBufferClaim {
  public:
    TextBufferClaim() noexcept {
        if (s_textBufferInUse) aio_cerr().print("inp_CAPI_Item_AsCharPtr already in use\n");
        s_textBufferInUse = true;
    }
    ~TextBufferClaim() { s_textBufferInUse = false; }
    TextBufferClaim(TextBufferClaim const&) = delete;
    TextBufferClaim& operator=(TextBufferClaim const&) = delete;
};

[[noreturn]] void failUnknownType(int itemType) {
    char line[96];
    std::snprintf(line, sizeof line,
                  "ERROR - inp_CAPI_Item_AsCharPtr() Unimplemented input file item type:%d",
                  itemType);
    aio_cerr().print(line);
    zelbas_AssertFailed("\"Unknown data type\" == 0", __FILE__, __LINE__);
}

}  // namespace

extern "C" char const* inp_CAPI_Item_AsCharPtr(inp_CAPI_Item const* item) {
    TextBufferClaim claim;
    if (!item) return "None";
    switch (item->itemType) {
        case inp_CAPI_INTEGER:
            std::snprintf(s_textBuffer, sizeof s_textBuffer, "%d", item->ival);
            return s_textBuffer;
        case inp_CAPI_BOOLEAN:
            return item->bval ? "True" : "False";
        case inp_CAPI_REAL:
            std::snprintf(s_textBuffer, sizeof s_textBuffer, "%g", item->dval);
            return s_textBuffer;
        case inp_CAPI_STRING:
            return item->sval;
        case inp_CAPI_NONE:
            return "None";
        default:
            failUnknownType(item->itemType);
    }
}
