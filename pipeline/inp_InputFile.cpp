#include "pipeline/inp_InputFile.h"

#include "deck/inp_QuotedText.h"
#include "parser/inp_Parser.h"
#include "support/eli_eostream.h"
#include "support/thr_Singleton.h"
#include "support/wip_WIP.h"

inp_InputFile::inp_InputFile() : m_options(inp_InputFileOptions::FromHostCommandLine()) {}

void inp_InputFile::Parse(cow_String fileName) {
    m_fileName = fileName;
    inp_Parser parser(fileName, m_options.includePath, cow_List<cow_String>(), cow_String(),
                      /*strictDecryption=*/m_options.strictParse, m_options.bulk,
                      m_options.forScripting);
    m_keywords = parser.Parse(/*strict=*/m_options.strictParse);
    m_includedFiles = parser.GetIncludedFiles();
    m_missingIncludeFiles = parser.GetMissingIncludeFiles();

    wip_WIP& sink = thr_ThreadSingleton<wip_WIP>::Instance();
    if (!parser.GetFatalErrors().IsEmpty()) sink.ErrorList(parser.GetFatalErrors(), wip_LEVEL0);
    if (!parser.GetErrors().IsEmpty()) sink.ErrorList(parser.GetErrors(), wip_LEVEL1);
    if (!parser.GetWarnings().IsEmpty()) sink.WarningList(parser.GetWarnings());
}

void inp_InputFile::Print(eli_eostream& out) const {
    for (inp_Keyword const& keyword : m_keywords) keyword.Print(out, true);
}

void inp_InputFile::Print(aio_ostream& out) const {
    eli_eostream lines(out, 1024);
    Print(lines);
}

// Most lists have no blanked record: they are only looked at, since a copy
// of each record would cost a reference count on each of its parts.
void inp_InputFile::DiscardEmptyKeywords() {
    int blanks = 0;
    for (inp_Keyword const& keyword : m_keywords)
        blanks += keyword.Keyword() == inp_kw_UndefinedKeyword;
    if (blanks == 0) return;
    cow_List<inp_Keyword> kept;
    kept.Reserve(m_keywords.Length() - blanks);
    for (inp_Keyword const& keyword : m_keywords)
        if (keyword.Keyword() != inp_kw_UndefinedKeyword) kept.Append(keyword);
    m_keywords = kept;
}

cow_String inp_InputFile::TakeOutSpacesOutsideQuoted(char const* text) {
    return inp_TakeOutSpacesOutsideQuoted(text);
}
