#pragma once
#include "support/ZELBasException.h"
#include "support/cow_String.h"

// Base64 with the standard alphabet (A-Z, a-z, 0-9, '+', '/') and '='
// padding, as used for the lines of encrypted decks. Both directions are
// table-driven and allocate the result once.

// A text that strict decoding refuses. UserReport() is a short reason that
// starts in lower case and has no final full stop, so that it reads well
// inside a longer sentence.
class utl_Base64CodecError : public nex_PrimException<atr_String, 1> {
  public:
    explicit utl_Base64CodecError(atr_String const& message)
        : nex_PrimException<atr_String, 1>(message) {}
    char const* DynTypeId() const override { return "utl_Base64CodecError"; }
    utl_Base64CodecError* Copy() const override { return new utl_Base64CodecError(*this); }
    [[noreturn]] void Propagate() const override { throw *this; }
};

// The bytes of `text`, which is not changed.
//
// Strict: trailing blanks, tabs, carriage returns and newlines are ignored
// (a line may come with its line end); what remains must be whole groups of
// four alphabet characters, the last of which may end in "=" or "==". The
// bits that padding discards must be zero, so that every byte string has
// exactly one accepted text. Anything else throws utl_Base64CodecError,
// naming the 1-based position of the first offending character.
//
// Lenient: characters outside the alphabet are skipped. A '=' ends the group
// it stands in, so concatenated padded texts decode piece by piece. Bits at
// the end of a group that don't make a whole byte are dropped. Never throws.
cow_String utl_base64Decode(cow_String const& text, bool strict);

// The Base64 text of `bytes`, padded to a multiple of four characters.
cow_String utl_base64Encode(cow_String const& bytes);
