// *INCLUDE: a file of keywords, data lines or both, spliced in where the
// *INCLUDE line stood, read by a nested parser. Data lines flow over the file
// border both ways: lines at the head of the included file go on the data of
// the last keyword before the *INCLUDE, and lines behind the *INCLUDE line
// go on the last keyword of the included file.

#include <string_view>

#include "deck/inp_DeckFileLookup.h"
#include "deck/inp_Exceptions.h"
#include "parser/inp_Parser.h"
#include "support/ZELBasUtlFilePath.h"
#include "support/pnt_PrettyPrint.h"
#include "support/typ_DebugFlags.h"

namespace {

// Whether `name` is one of the abbreviations "i" .. "input" of `word`.
// *INCLUDE reaches no parameter expansion, so its two parameters are
// recognised here.
bool abbreviates(cow_String const& name, std::string_view word) {
    return !name.IsEmpty() && static_cast<size_t>(name.Length()) <= word.size() &&
           word.starts_with(name.View());
}

}  // namespace

cow_String inp_Parser::includeFileName(inp_Keyword const& include, cow_String& password) const {
    cow_String fileName;
    bool haveFile = false, havePassword = false;
    for (cow_ConstMapIterator<cow_String, inp_Item> it(include.Parameters()); it.NotDone();
         it.Next()) {
        if (!haveFile && abbreviates(it.CurrentKey(), "input")) {
            fileName = it.CurrentValue().AsString();
            haveFile = true;
        } else if (!havePassword && abbreviates(it.CurrentKey(), "password")) {
            password = it.CurrentValue().AsString();
            havePassword = true;
        }
    }
    return fileName;
}

cow_List<inp_Keyword> inp_Parser::IncludeFile(inp_Keyword const& include, bool strict) {
    cow_String password;
    cow_String name = includeFileName(include, password);
    if (name.IsEmpty()) throw inp_NoInputParameterException(m_lineNumber, m_fileName);
    // A bare <name> never gets here: it fits no value pattern, so a strict
    // parse rejects it as an invalid value and a lenient one reads it as
    // "None". Written in quotes it arrives, and is recognised inside them.
    cow_String unquoted = inp_WithoutQuotes(name);
    if (unquoted.StartsWith("<") && unquoted.EndsWith(">"))
        throw inp_ParameterizedIncludeFileException(m_lineNumber, m_fileName, name);

    cow_String found = inp_LocateDeckFile(name, m_includePath);
    if (found.IsEmpty()) {
        inp_ListMissingDeckFile(m_missingIncludeFiles, name);
        throw inp_MissingIncludeFileException(m_lineNumber, m_fileName, name);
    }
    ZELBasUtlFilePath path(found);
    if (!path.IsReadable())
        throw inp_UnreadableIncludeFileException(m_lineNumber, m_fileName, name);
    cow_String absolute = path.AbsolutePathName();
    if (m_openFiles.IsMember(absolute))
        throw inp_CircularIncludeFileException(m_lineNumber, m_fileName, name);
    m_includedFiles.Append(name);

    inp_Parser nested(absolute, m_includePath, m_openFiles, password, strictDecryption, bulk,
                      false);
    cow_List<inp_Keyword> keywords;
    try {
        keywords = nested.Parse(strict);
    } catch (nex_PrimException<atr_String, 1> const&) {
        // The file went away between the check and the open.
        throw inp_UnreadableIncludeFileException(m_lineNumber, m_fileName, name);
    }
    mergeIncludeLists(nested);
    takeLeadingLinesOfInclude(nested, password);
    takeLinesBehindInclude(keywords);
    return keywords;
}

// Errors are taken over whole, past the limit of the message lists; warnings
// of an included file are not taken over.
void inp_Parser::mergeIncludeLists(inp_Parser const& nested) {
    m_errors.Concatenate(nested.GetErrors());
    m_fatalErrors.Concatenate(nested.GetFatalErrors());
    for (cow_String const& name : nested.GetIncludedFiles())
        m_includedFiles.AppendUnlessMember(name);
    for (cow_String const& name : nested.GetMissingIncludeFiles())
        m_missingIncludeFiles.AppendUnlessMember(name);
}

// The lines in front of the first keyword of the included file continue the
// data of the last keyword read here; with no keyword yet they are this
// file's own leading lines.
void inp_Parser::takeLeadingLinesOfInclude(inp_Parser const& nested, cow_String const& password) {
    cow_List<cow_String> lines = nested.SkippedDataLines();
    if (m_keywords.IsEmpty()) {
        m_skippedDataLines.Concatenate(lines);
        return;
    }
    inp_Keyword& last = m_keywords.GetLast();
    int added = 0;
    for (cow_String const& line : lines) {
        if (IsComment(line.CStr()) || !bulk) continue;
        last.Data().Append(line.CStr());
        ++added;
    }
    if (added > 0 && !password.IsEmpty()) last.SetEncrypted(true);
    if (typ_DebugFlags::GetDebugFlags(30) >= 2) {
        pnt_debugPrint().StartDebug(__FILE__, __LINE__);
        pnt_debugPrint() << added << " lines added to keyword \"" << last.Name()
                         << "\" from input file \"" << nested.FileName() << "\".";
        pnt_debugPrint().EndDebug();
    }
}

// The data lines behind the *INCLUDE line, up to the next keyword, belong to
// the last keyword of the included file, else to the last keyword here.
void inp_Parser::takeLinesBehindInclude(cow_List<inp_Keyword> const& nestedKeywords) {
    readToNextKeyword([&](char const* line) {
        if (IsComment(line) || !bulk) return;
        if (!nestedKeywords.IsEmpty()) {
            nestedKeywords.Last().Data().Append(line);
        } else if (!m_keywords.IsEmpty()) {
            m_keywords.Last().Data().Append(line);
        } else {
            m_skippedDataLines.Append(cow_String(line));
        }
    });
}
