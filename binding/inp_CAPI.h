#ifndef FEDECK_INP_CAPI_H
#define FEDECK_INP_CAPI_H
/*
 * The flat entry of libfedeck.so, for callers that can't use the C++ classes
 * of the library: C programs and the foreign-function layers of scripting
 * languages. inp_CAPI_Parse reads a deck, expands it, organizes it if asked,
 * and pushes the result out through four callbacks that the caller supplies.
 * Each call carries a path that says where the value belongs in the caller's
 * object tree, such as ".keywords[3].suboptions[0].parameter".
 *
 * Ownership: every string and array handed to a callback is allocated by the
 * library and freed by it as soon as the callback returns. A caller that
 * wants to keep something copies it during the call.
 *
 * Not re-entrant: the callbacks, the trace levels and the text buffer of
 * inp_CAPI_Item_AsCharPtr are process-wide. Make one call at a time.
 *
 * The record layouts below are part of the interface (64-bit targets).
 */

#include <stdint.h>
#ifndef __cplusplus
#include <stdbool.h>
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* The values of inp_CAPI_Item.itemType. */
enum inp_CAPI_ItemType {
    inp_CAPI_INTEGER = 0, /* ival */
    inp_CAPI_BOOLEAN = 1, /* bval */
    inp_CAPI_REAL = 2,    /* dval */
    inp_CAPI_STRING = 3,  /* sval */
    inp_CAPI_NONE = 4     /* no value: a parameter written without one, an empty data item */
};

/* One value, 32 bytes. Only the field of itemType means anything; the others
 * are zero. */
typedef struct inp_CAPI_Item {
    int32_t itemType; /* offset 0: an inp_CAPI_ItemType value */
    int32_t ival;     /* offset 4 */
    bool bval;        /* offset 8, then 7 bytes of padding */
    double dval;      /* offset 16 */
    char* sval;       /* offset 24: zero-terminated, owned by the library; null unless a string */
} inp_CAPI_Item;

/* One parameter of a keyword, 40 bytes. */
typedef struct inp_CAPI_paramKeyValue {
    char* key;           /* offset 0: the name, lower case without blanks, zero-terminated */
    inp_CAPI_Item value; /* offset 8 */
} inp_CAPI_paramKeyValue;

/*
 * The callbacks. `path` is zero-terminated and valid during the call only.
 *
 * populateStrings: for ".includes" and ".missingIncludes" (the deck's files
 *   read and not found, include files and data files alike), and for each
 *   keyword's ".name" and ".comments". `objType` is "str" for a name (count
 *   1) and "tuple" otherwise. `strings` holds `count` zero-terminated strings
 *   followed by a null pointer.
 */
typedef void (*inp_CAPI_PopulateStrings)(char const* path, char const* objType, int count,
                                         char** strings);

/*
 * populateParam: for each keyword's ".parameter": `count` records, one per
 *   parameter. A keyword without parameters gives count 0 and a null pointer.
 */
typedef void (*inp_CAPI_PopulateParam)(char const* path, int count, inp_CAPI_paramKeyValue* params);

/*
 * createKwdsList: for ".keywords" and each keyword's ".suboptions", before
 *   the `count` members of the list are sent, as "<path>[i]" in order.
 */
typedef void (*inp_CAPI_CreateKwdsList)(char const* path, int count);

/*
 * populateDataArray: for each keyword's ".data", the data lines as one array
 *   of `rows` times `cols` elements, row after row. `typeName` says what an
 *   element is:
 *     "inp_IsInt"       int32_t: every item is an integer
 *     "inp_IsDouble"    double: every item is a real, but for integers in
 *                       column 0 below row 0, which are widened
 *     "inp_IsDoubleCZI" double: a table whose column 0 holds labels, such
 *                       as a node table: row 0 starts with an integer, every
 *                       item is a number, a real among them; integers are
 *                       widened
 *     "inp_IsItem"      inp_CAPI_Item: anything else. `cols` is the longest
 *                       row; the places beyond a shorter row, and empty
 *                       items, are inp_CAPI_NONE items.
 *   A keyword without data lines gives "inp_IsItem", 0, 0 and a null
 *   pointer. The data of a keyword read from an encrypted file is never
 *   sent: such a keyword has no ".data" call at all.
 */
typedef void (*inp_CAPI_PopulateDataArray)(char const* path, char const* typeName, int rows,
                                           int cols, void* array);

/*
 * Reads the deck `fileName`, looking for include files in `directoryName`
 * (a null pointer is taken for an empty string), and sends it through the
 * callbacks: ".includes", ".missingIncludes", then ".keywords" and each
 * keyword in turn, as ".keywords[i]": its ".name", ".parameter", ".data",
 * ".suboptions" (each suboption recursively) and ".comments".
 *
 * organize:  nest the keywords into their holders (a *STEP holds its
 *            procedure, loads and output) rather than send them flat.
 * verbose:   1 or more prints the fatal errors of expansion and organization
 *            to standard error. Fatal errors of reading the deck always are.
 * bulk:      false skips the data lines of all keywords but *HEADING and
 *            *STEP, which is fast on big decks; their lines then come as
 *            strings in column 0.
 * printKwds: print every keyword to standard error at the end.
 *
 * The environment variables FNK_DBG_INPPARSER, FNK_DBG_INPPARSER_MEM and
 * FNK_DBG_INPPARSERCTORS, read at each call when set, turn on traces of the
 * call, of the allocations and of the records to standard error.
 *
 * Returns 0. Defects of the deck don't make the call fail: it delivers what
 * it could read. A deck file that can't be opened is the exception, in both
 * senses: a C++ exception leaves this function. A caller that can't catch
 * it (C, a foreign-function layer) must check that the file is readable
 * before the call.
 *
 * A null callback is not called, and nothing is built for it. A failed
 * allocation prints an error and gives its callback a count of 0 (rows and
 * cols 0) and a null pointer; the call goes on.
 */
int inp_CAPI_Parse(char const* fileName, char const* directoryName, bool organize, int verbose,
                   bool bulk, bool printKwds, inp_CAPI_PopulateStrings populateStrings,
                   inp_CAPI_PopulateParam populateParam, inp_CAPI_CreateKwdsList createKwdsList,
                   inp_CAPI_PopulateDataArray populateDataArray);

/*
 * The value of `item` as text: the number ("%d", "%g"), "True" or "False",
 * the string, or "None". Numbers are written into a static buffer that the
 * next call reuses: copy the text before calling again. A pointer, not a
 * reference as a C++ caller might expect, because C has none. An itemType
 * outside inp_CAPI_ItemType prints an error and fails an assertion, which
 * is a C++ exception: pass only records that the library made.
 */
char const* inp_CAPI_Item_AsCharPtr(inp_CAPI_Item const* item);

#ifdef __cplusplus
} /* extern "C" */
#endif

#endif /* FEDECK_INP_CAPI_H */
