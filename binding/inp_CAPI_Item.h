#pragma once
// The C records of the flat entry with value semantics for the C++ side.
//
// The layout is defined once, by the plain structs of binding/inp_CAPI.h that
// callers see. Each class here derives from its struct and adds constructors,
// copying and a destructor that own the strings (`sval`, `key`) through
// mem_Malloc and mem_Free, and nothing else: no data member, nothing virtual.
// An object of these classes therefore IS the C record, byte for byte, and an
// array of them is an array of records to hand to a callback. Deriving keeps
// the C header free of C++ (a C++ caller of the shared library sees the plain
// structs, whose constructors it could not link to anyway: only the inp_CAPI_
// C functions are exported).

#include "binding/inp_CAPI.h"

class cow_String;
class inp_Item;

class inp_CAPI_OwnedItem : public inp_CAPI_Item {
  public:
    // A none item; every byte but the type zero.
    inp_CAPI_OwnedItem() noexcept;
    explicit inp_CAPI_OwnedItem(int value) noexcept;
    explicit inp_CAPI_OwnedItem(bool value) noexcept;
    explicit inp_CAPI_OwnedItem(double value) noexcept;
    // A string item holding a copy of `text`; a null pointer gives a none item.
    explicit inp_CAPI_OwnedItem(char const* text) noexcept;
    explicit inp_CAPI_OwnedItem(cow_String const& text) noexcept;
    // The item's type, and its value through the matching As operation.
    explicit inp_CAPI_OwnedItem(inp_Item const& item);
    // Copies duplicate the string.
    explicit inp_CAPI_OwnedItem(inp_CAPI_Item const& other) noexcept;
    inp_CAPI_OwnedItem(inp_CAPI_OwnedItem const& other) noexcept;
    inp_CAPI_OwnedItem& operator=(inp_CAPI_OwnedItem const& other) noexcept;
    ~inp_CAPI_OwnedItem();

    // The trace of constructors and destructors (FNK_DBG_INPPARSERCTORS).
    static void SetTraceLevel(int level) noexcept;

    // What the destructor does, for a record that never was an object of
    // this class (a member of a plain struct): frees the string and leaves a
    // none item.
    static void Release(inp_CAPI_Item& item) noexcept;
    // Makes `to`, whose string must already be released, a copy of `from`.
    static void CopyInto(inp_CAPI_Item& to, inp_CAPI_Item const& from) noexcept;
};

class inp_CAPI_OwnedParamKeyValue : public inp_CAPI_paramKeyValue {
  public:
    // A null key and a none value.
    inp_CAPI_OwnedParamKeyValue() noexcept;
    inp_CAPI_OwnedParamKeyValue(cow_String const& key, inp_Item const& value);
    // Copies duplicate the key and copy the value.
    inp_CAPI_OwnedParamKeyValue(inp_CAPI_OwnedParamKeyValue const& other) noexcept;
    inp_CAPI_OwnedParamKeyValue& operator=(inp_CAPI_OwnedParamKeyValue const& other) noexcept;
    ~inp_CAPI_OwnedParamKeyValue();
};

// The names of the item types in traces: "inp_INTEGER" ... "inp_NONE", or
// "unknown".
char const* inp_CAPI_TypeName(int itemType) noexcept;
