#pragma once
// Reads one deck file from top to bottom into a flat list of keyword records,
// one per keyword line in file order, with the records of included files
// spliced in where the *INCLUDE stood. It knows nothing of what a keyword
// means: data lines are stored as text, untyped, and parameters are not
// checked against any list.
//
// A hand-written line reader with one line of push-back. The current line
// lives in a buffer inside the object; a data line costs one Append and
// nothing else.

#include <string_view>

#include "deck/inp_Keyword.h"
#include "parser/inp_FoldedNames.h"
#include "parser/inp_KeywordResolver.h"
#include "support/aio_Stream.h"
#include "support/atr_String.h"
#include "support/cow_List.h"

class inp_Parser : public aio_ifstream {
  public:
    static constexpr int kMaxLineLength = 256;
    // Beyond this many entries a message list takes one note and no more.
    static constexpr int kMessageLimit = 25;

    // Stores the arguments; the file is opened by Parse. A non-empty password
    // sends every line through decryption. With `bulk` false the data lines of
    // all keywords but *HEADING and *STEP are read and dropped.
    inp_Parser(cow_String fileName, cow_String includePath, cow_List<cow_String> openFiles,
               cow_String password, bool strictDecryption, bool bulk, bool forScripting);

    // The parse loop. `strict` checks parameter names and values and makes a
    // missing include fatal; the pipeline parses strictly. Only a file that
    // can't be opened throws; every other defect lands in the message lists.
    cow_List<inp_Keyword> Parse(bool strict);

    cow_List<atr_String> const& GetErrors() const { return m_errors; }
    cow_List<atr_String> const& GetWarnings() const { return m_warnings; }
    cow_List<atr_String> const& GetFatalErrors() const { return m_fatalErrors; }
    cow_List<cow_String> const& GetIncludedFiles() const { return m_includedFiles; }
    cow_List<cow_String> const& GetMissingIncludeFiles() const { return m_missingIncludeFiles; }
    // Data lines met before the first keyword of this file.
    cow_List<cow_String> SkippedDataLines() const { return m_skippedDataLines; }
    cow_String FileName() const { return m_fileName; }
    int LineNumber() const { return m_lineNumber; }
    bool IsEndOfFile() const { return m_endOfFile; }

  private:
    // The next line, trimmed of blanks, tabs and carriage returns at both ends.
    // Never null: at the end of the file it is empty and m_endOfFile is set.
    char const* Readline();
    // Reads what is left of an overlong line and warns that it was truncated.
    void discardRestOfLine();
    // Pushes `line` back: the next Readline hands it out again.
    void Buffer(char const* line);
    static bool IsComment(char const* line);
    static bool IsKeyword(char const* line);
    void BufferCommentLine(char const* line);
    // Reads lines up to the next keyword line, which is pushed back, or to the
    // end of the file, and hands every other line to `onLine`.
    template <class OnLine>
    void readToNextKeyword(OnLine&& onLine) {
        for (;;) {
            char const* line = Readline();
            if (m_endOfFile) return;
            if (IsKeyword(line)) {
                Buffer(line);
                return;
            }
            onLine(line);
        }
    }
    void SkipToNextKeyword(bool collect);
    // Reads lines up to the next keyword line and pushes it back; comments are
    // kept for the next keyword, other lines forgotten.
    void recoverAtNextKeyword();
    cow_String AppendContinuationLines(char const* line, bool strict);
    // A record without a keyword (enumerator 0) when the name is no keyword;
    // the error is kept.
    inp_Keyword ParseKeyword(bool strict);
    void readDataLines(inp_Keyword& keyword);
    void ParseParameters(inp_Keyword& keyword, std::string_view text, bool strict);
    // One NAME or NAME=VALUE piece of the parameter text, trimmed and not empty.
    void addParameter(inp_Keyword const& keyword, cow_Map<cow_String, inp_Item>& parameters,
                      std::string_view token, bool strict);
    // False when the keyword line was refused with an error already kept:
    // the caller then recovers at the next keyword.
    bool parseOneKeyword(bool strict);
    void handleParseFailure(bool strict, int& memoryErrors);
    void dropEverything();

    // *INCLUDE: the keywords of the included file, read by a nested parser.
    cow_List<inp_Keyword> IncludeFile(inp_Keyword const& include, bool strict);
    cow_String includeFileName(inp_Keyword const& include, cow_String& password) const;
    void mergeIncludeLists(inp_Parser const& nested);
    void takeLeadingLinesOfInclude(inp_Parser const& nested, cow_String const& password);
    void takeLinesBehindInclude(cow_List<inp_Keyword> const& nestedKeywords);

    // Encrypted files: replaces the raw line in place by its plain text.
    void Decrypt(char* line);

    void saveError(atr_String const& message);
    void saveFatalError(atr_String const& message);

    int m_lineNumber = 0;
    cow_String m_fileName;
    // The file name every keyword of this file shares (a commented keyword
    // has an origin of its own, with its comments).
    inp_KeywordOrigin m_origin;
    cow_String m_includePath;
    bool m_stashed = false;
    bool m_endOfFile = false;
    char m_buffer[kMaxLineLength + 1] = {};
    cow_String m_password;
    bool m_encrypted = false;
    bool m_headerPending = true;
    bool strictDecryption;
    bool bulk;
    double m_decryptionTime = 0.0;
    cow_List<inp_Keyword> m_keywords;
    cow_List<cow_String> m_openFiles;
    cow_List<cow_String> m_skippedDataLines;
    cow_List<cow_String> m_includedFiles;
    cow_List<cow_String> m_missingIncludeFiles;
    cow_List<cow_String> m_comments;
    bool m_commentsPending = false;
    bool forScripting;
    cow_List<atr_String> m_errors;
    cow_List<atr_String> m_warnings;
    cow_List<atr_String> m_fatalErrors;
    inp_FoldedNames m_names;
    inp_KeywordResolver m_keywordNames;
};
