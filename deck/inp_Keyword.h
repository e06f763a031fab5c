#pragma once
// The record of one keyword of a deck: what it is, its parameters, its data
// lines, its suboptions and where it came from.
//
// Copying a record is cheap: parameters, comments and suboptions share their
// storage copy-on-write, and a copy shares the very same data array, so a Set
// or Append on one copy's data shows in the other. DeepCopy makes the data
// independent.

#include <utility>

#include "deck/inp_DataArray.h"
#include "deck/inp_Item.h"
#include "deck/inp_KeywordOrigin.h"
#include "deck/inp_keywords.h"
#include "support/cow_List.h"
#include "support/cow_Map.h"
#include "support/cow_String.h"

class aio_ostream;
class eli_eostream;
class inp_Visitor;

class inp_Keyword {
  public:
    inp_Keyword() = default;
    // The enumerator is resolved through the keyword table; 0 if unknown.
    explicit inp_Keyword(cow_String const& name);
    explicit inp_Keyword(inp_KeywordEnm keyword) : m_keyword(keyword) {}
    inp_Keyword(inp_KeywordEnm keyword, cow_String const& fileName)
        : m_keyword(keyword), m_origin(fileName) {}
    inp_Keyword(inp_KeywordEnm keyword, inp_KeywordOrigin const& origin)
        : m_keyword(keyword), m_origin(origin) {}

    inp_KeywordEnm Keyword() const { return m_keyword; }
    // Setting 0 blanks the record: later stages pass it over and drop it.
    void SetKeyword(inp_KeywordEnm keyword) { m_keyword = keyword; }
    bool Is(inp_KeywordEnm keyword) const { return m_keyword == keyword; }
    // The table's folded name.
    cow_String Name() const;

    int Level() const { return m_level; }
    void SetLevel(int level) { m_level = level; }

    // Parameters, keyed by their folded names.
    cow_Map<cow_String, inp_Item> const& Parameters() const { return m_parameters; }
    cow_Map<cow_String, inp_Item>& GetParameters() { return m_parameters; }
    void SetParameters(cow_Map<cow_String, inp_Item> const& parameters) {
        m_parameters = parameters;
    }
    void SetParameter(cow_String const& name, inp_Item const& value) {
        m_parameters.Insert(name, value);
    }
    bool RemoveParameter(cow_String const& name) { return m_parameters.Remove(name); }
    // The reads take a name as a string or as a literal; a literal is looked
    // up as it stands, without a string made of it.
    bool HasParameter(cow_String const& name) const { return m_parameters.IsMember(name); }
    bool HasParameter(char const* name) const { return m_parameters.IsMember(name); }
    // `fallback` unless the parameter exists with an integer item.
    int GetParameterAsInt(cow_String const& name, int fallback) const {
        return intOf(m_parameters.Find(name), fallback);
    }
    int GetParameterAsInt(char const* name, int fallback) const {
        return intOf(m_parameters.Find(name), fallback);
    }
    // `fallback` unless the parameter exists with a double or integer item.
    double GetParameterAsDouble(cow_String const& name, double fallback) const {
        return doubleOf(m_parameters.Find(name), fallback);
    }
    double GetParameterAsDouble(char const* name, double fallback) const {
        return doubleOf(m_parameters.Find(name), fallback);
    }
    // `fallback` unless the parameter exists with a string item.
    cow_String GetParameterAsString(cow_String const& name, cow_String fallback) const {
        return stringOf(m_parameters.Find(name), std::move(fallback));
    }
    cow_String GetParameterAsString(char const* name, cow_String fallback) const {
        return stringOf(m_parameters.Find(name), std::move(fallback));
    }

    inp_DataArray const& Data() const { return m_data; }
    inp_DataArray& Data() { return m_data; }
    void SetData(inp_DataArray const& data) { m_data = data; }

    cow_List<inp_Keyword> const& Suboptions() const { return m_suboptions; }
    cow_List<inp_Keyword>& GetSuboptions() { return m_suboptions; }
    void SetSuboptions(cow_List<inp_Keyword> const& suboptions) { m_suboptions = suboptions; }
    // Whether a direct child has that enumerator; no recursion.
    bool hasSuboption(inp_KeywordEnm keyword) const;
    // Hands this keyword to the visitor's Visit, which handles it and walks
    // its suboptions. Defined with the visitor base, in pipeline/inp_Visitor.cpp.
    void Accept(inp_Visitor& visitor);

    cow_String const& FileName() const { return m_origin.FileName(); }
    void SetFileName(cow_String const& fileName) { m_origin.SetFileName(fileName); }
    int LineNumber() const { return m_lineNumber; }
    void SetLineNumber(int line) { m_lineNumber = line; }
    bool IsEncrypted() const { return m_encrypted; }
    void SetEncrypted(bool encrypted) { m_encrypted = encrypted; }
    cow_List<cow_String> const& Comments() const { return m_origin.Comments(); }
    void SetComments(cow_List<cow_String> const& comments) { m_origin.SetComments(comments); }
    void AddComment(cow_String const& comment) { m_origin.AddComment(comment); }
    // The file name and comments together, as records of one file share them.
    inp_KeywordOrigin const& Origin() const { return m_origin; }
    void SetOrigin(inp_KeywordOrigin const& origin) { m_origin = origin; }
    bool FromScripting() const { return m_fromScripting; }
    void SetFromScripting(bool fromScripting) { m_fromScripting = fromScripting; }

    // A record with the same enumerator, file name, line, encrypted flag, mark
    // and parameters, a deep copy of the data and of each suboption. Comments
    // and the scripting flag are not carried over.
    inp_Keyword DeepCopy() const;

    // Writes the keyword back as deck text, wrapping parameter lines before
    // they reach 132 characters.
    void Print(eli_eostream& out, bool withSuboptions) const;
    void Print(aio_ostream& out, bool withSuboptions) const;
    // The form used for debug output and the flat entry.
    cow_String Print(bool withSuboptions) const;

  private:
    static int intOf(inp_Item const* item, int fallback);
    static double doubleOf(inp_Item const* item, double fallback);
    static cow_String stringOf(inp_Item const* item, cow_String fallback);
    void printDataRows(eli_eostream& out) const;
    void printDebug(cow_String& out, bool withSuboptions) const;
    bool quotesItemsWithBlanks() const;

    // What every walk of a deck reads of each record, its kind and whether
    // it has suboptions to descend into, and next what most stages read,
    // its parameters, come first: together in the record's first bytes,
    // they mostly lie in one cache line.
    inp_KeywordEnm m_keyword = inp_kw_UndefinedKeyword;
    int m_level = 0;  // a mark that stages may set; copied by every copy
    cow_List<inp_Keyword> m_suboptions;
    cow_Map<cow_String, inp_Item> m_parameters;
    inp_DataArray m_data;
    inp_KeywordOrigin m_origin;
    int m_lineNumber = 0;
    bool m_encrypted = false;
    // Beside the other small fields: a deck holds millions of records, and
    // one of 64 bytes is read in one cache line's worth of memory.
    bool m_fromScripting = false;
};
