#include "parser/inp_Parser.h"

#include <cctype>
#include <cstdio>
#include <cstring>
#include <new>

#include "deck/inp_Exceptions.h"
#include "deck/inp_KeywordMessage.h"
#include "deck/inp_KeywordTable.h"
#include "deck/inp_PatternMatchers.h"
#include "support/ZELBasAssert.h"
#include "support/ZELBasUtlFilePath.h"
#include "support/omi_Timer.h"
#include "support/pnt_PrettyPrint.h"
#include "support/typ_DebugFlags.h"

namespace {

// Big enough that a read costs far less than the lines it brings, small
// enough that a deep chain of include files, each with its own open parser,
// stays cheap.
constexpr size_t kReadBufferSize = size_t{128} << 10;
// The lists that grow with the deck start with room for this many entries.
constexpr int kExpectedEntries = 16384;
constexpr unsigned kDebugFlag = 30;

bool isLineBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r';
}

// Whether the line holds the marker of an encrypted file. Data lines seldom
// hold an asterisk at all, so that is looked for first.
bool hasEncryptionMarker(char const* line) {
    char const* star = std::strchr(line, '*');
    return star && std::strstr(star, "** encrypted input");
}

// Lower case, every blank and tab removed: how keyword and parameter names compare.
cow_String foldName(std::string_view text) {
    cow_String folded;
    folded.Reserve(static_cast<int>(text.size()));
    for (char c : text) {
        if (c == ' ' || c == '\t') continue;
        folded.append(static_cast<char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c));
    }
    return folded;
}

}  // namespace

inp_Parser::inp_Parser(cow_String fileName, cow_String includePath, cow_List<cow_String> openFiles,
                       cow_String password, bool strictDecryption, bool bulk, bool forScripting)
    : aio_ifstream(kReadBufferSize),
      m_fileName(fileName),
      m_includePath(includePath),
      m_password(password),
      m_encrypted(!password.IsEmpty()),
      strictDecryption(strictDecryption),
      bulk(bulk),
      m_openFiles(openFiles),
      forScripting(forScripting) {
    m_keywords.Reserve(kExpectedEntries);
    m_skippedDataLines.Reserve(kExpectedEntries);
    // The chain holds absolute paths, so that a file reached once by a relative
    // and once by an absolute name is still recognised as the same file.
    m_openFiles.Append(ZELBasUtlFilePath(fileName).AbsolutePathName());
}

// ---------------------------------------------------------------- lines

char const* inp_Parser::Readline() {
    ++m_lineNumber;
    if (m_stashed) {
        m_stashed = false;
        return m_buffer;
    }
    auto endOfFile = [this] {
        m_endOfFile = true;
        m_buffer[0] = 0;
        return m_buffer;
    };
    if (m_endOfFile || eof() || fail()) return endOfFile();

    for (;;) {
        m_buffer[0] = 0;
        aio_istream::getline(m_buffer, kMaxLineLength + 1);
        if (fail()) {
            // Failing with a full buffer means the line goes on; failing with
            // nothing read is the end of the file.
            if (gcount() != kMaxLineLength) return endOfFile();
            discardRestOfLine();
        }
        if (m_encrypted || hasEncryptionMarker(m_buffer)) {
            bool wasHeader = m_headerPending;
            Decrypt(m_buffer);
            // The header of an encrypted file carries its working key: it is
            // read past here, so that it can't become a data line of the
            // keyword in front of the *INCLUDE and be shown with it.
            if (wasHeader && !m_headerPending) {
                ++m_lineNumber;
                continue;
            }
        }
        break;
    }
    if (m_buffer[0] == 0 && eof()) return endOfFile();

    char* line = m_buffer;
    while (isLineBlank(*line)) ++line;
    size_t length = std::strlen(line);
    while (length > 0 && isLineBlank(line[length - 1])) line[--length] = 0;
    return line;
}

void inp_Parser::discardRestOfLine() {
    clear();
    for (int c = get(); c != '\n' && c != kEof; c = get()) {
    }
    m_warnings.Append(atr("Line #%d has been truncated.", m_lineNumber)
                          .SetLocation({m_fileName, m_lineNumber, cow_String()}));
}

void inp_Parser::Buffer(char const* line) {
    if (m_stashed) ZELBAS_ASSERT_TEXT(!std::strcmp(line, m_buffer), "!strcmp(stash, m_buffer)");
    if (line != m_buffer) std::memmove(m_buffer, line, std::strlen(line) + 1);
    m_stashed = true;
    --m_lineNumber;
}

bool inp_Parser::IsComment(char const* line) {
    return line[0] == '*' && line[1] == '*';
}

bool inp_Parser::IsKeyword(char const* line) {
    while (std::isspace(static_cast<unsigned char>(*line))) ++line;
    if (*line != '*') return false;
    ++line;
    while (std::isspace(static_cast<unsigned char>(*line))) ++line;
    return std::isalpha(static_cast<unsigned char>(*line)) != 0;
}

void inp_Parser::BufferCommentLine(char const* line) {
    ZELBAS_ASSERT_TEXT(IsComment(line), "IsComment(data)");
    m_comments.Append(cow_String(line + 2));
    m_commentsPending = true;
}

void inp_Parser::SkipToNextKeyword(bool collect) {
    if (collect) m_skippedDataLines.Clear();
    readToNextKeyword([&](char const* line) {
        if (IsComment(line)) {
            BufferCommentLine(line);
        } else if (collect && bulk) {
            m_skippedDataLines.Append(cow_String(line));
        }
    });
}

void inp_Parser::recoverAtNextKeyword() {
    readToNextKeyword([&](char const* line) {
        if (IsComment(line)) BufferCommentLine(line);
    });
}

cow_String inp_Parser::AppendContinuationLines(char const* line, bool strict) {
    cow_String result(line);
    while (result.EndsWith(",")) {
        char const* next = Readline();
        if (*next == 0) {
            result.RightTrim(", ");
            return result;
        }
        if (IsComment(next)) continue;
        if (IsKeyword(next)) {
            if (strict)
                throw inp_InvalidContinuationLineException(
                    m_lineNumber, m_fileName,
                    atr("A keyword has been detected on what is supposed to be a continuation "
                        "line. Please check "
                        "that a trailing comma has not been mistakenly placed in: %s",
                        result));
            continue;
        }
        result.append(next);
    }
    return result;
}

// ---------------------------------------------------------------- keywords

inp_Keyword inp_Parser::ParseKeyword(bool strict) {
    char const* data = Readline();
    int lineNumber = m_lineNumber;
    ZELBAS_ASSERT_TEXT(IsKeyword(data), "IsKeyword(data)");
    cow_String text = AppendContinuationLines(data, strict);

    inp_Keyword keyword;
    keyword.SetLineNumber(lineNumber);
    keyword.SetFileName(m_fileName);
    keyword.SetEncrypted(m_encrypted);
    keyword.SetFromScripting(forScripting);
    keyword.SetComments(m_comments);
    m_comments.Clear();
    m_commentsPending = false;

    int comma = text.Find(',');
    std::string_view nameText =
        text.View().substr(1, comma < 0 ? std::string_view::npos : size_t(comma) - 1);
    cow_String name = foldName(nameText);
    inp_KeywordTable& table = inp_KeywordTable::Instance();
    try {
        keyword.SetKeyword(table.Enum(table.FullName(name)));
    } catch (inp_UnknownKeywordException const&) {
        throw inp_UnknownKeywordException(lineNumber, m_fileName, name);
    } catch (inp_AmbiguousKeywordException const&) {
        throw inp_AmbiguousKeywordException(lineNumber, m_fileName, name);
    }

    if (comma >= 0) {
        cow_String parameters = text.Substr(comma + 1);
        parameters.Trim(" \t");
        try {
            ParseParameters(keyword, parameters, strict);
        } catch (inp_ParameterException const& cause) {
            throw inp_KeywordParameterException(lineNumber, m_fileName, name.ToUpper(), cause);
        }
    }
    if (keyword.Is(inp_kw_Include)) return keyword;
    readDataLines(keyword);
    return keyword;
}

void inp_Parser::readDataLines(inp_Keyword& keyword) {
    // The lines of *HEADING and *STEP are titles, kept whole and kept always.
    bool titles = keyword.Is(inp_kw_Heading) || keyword.Is(inp_kw_Step);
    inp_DataArrayImpl* data = keyword.Data().Impl();
    readToNextKeyword([&](char const* line) {
        if (IsComment(line)) {
            BufferCommentLine(line);
        } else if (titles) {
            data->AppendRaw(line);
        } else {
            // Only the comments directly in front of the next keyword are its own.
            if (m_commentsPending) {
                m_comments.Clear();
                m_commentsPending = false;
            }
            if (bulk) data->Append(line);
        }
    });
}

cow_List<cow_String> inp_Parser::Split(cow_String const& text) const {
    cow_List<cow_String> tokens;
    bool quoted = false;
    int start = 0;
    int length = text.Length();
    for (int i = 0; i <= length; ++i) {
        char c = i < length ? text[i] : 0;
        if (c == '"') {
            quoted = !quoted;
            continue;
        }
        if (i < length && (c != ',' || quoted)) continue;
        if (i == length && quoted) throw inp_MissingEndQuoteException(text);
        if (i > start) {
            cow_String token = text.Substr(start, i - start);
            token.Trim(" \t");
            if (!token.IsEmpty()) tokens.Append(token);
        }
        start = i + 1;
    }
    return tokens;
}

void inp_Parser::ParseParameters(inp_Keyword& keyword, cow_String const& text, bool strict) {
    cow_Map<cow_String, inp_Item> parameters;
    for (cow_String const& token : Split(text)) {
        int equals = token.Find('=');
        cow_String name = equals < 0 ? token : token.Substr(0, equals);
        cow_String value = equals < 0 ? cow_String() : token.Substr(equals + 1);

        if (inp_PatternMatch match = inp_PatternMatchers::MatchParam(name.View())) {
            name = foldName(match.text);
        } else if (strict) {
            throw inp_InvalidParameterException(token);
        }

        if (parameters.IsMember(name)) {
            cow_String shown = cow_String(value).Trim(" \t");
            atr_String text =
                value.IsEmpty()
                    ? atr("Repeated parameter: %s.  New definition overrides previous setting.",
                          name)
                    : atr("Repeated parameter: %s.  New definition of \"%s\" overrides previous "
                          "setting.",
                          name, shown);
            m_warnings.Append(inp_MessageInKeyword(keyword, text));
        }

        if (value.IsEmpty()) {
            parameters.Insert(name, inp_Item(true));  // NSET and NSET= are the same
            continue;
        }
        inp_Item item(value);
        if (item.Type() == inp_Types::inp_NONE && strict)
            throw inp_InvalidParameterValueException(name, value);
        parameters.Insert(name, item);
    }
    keyword.SetParameters(parameters);
}

// ---------------------------------------------------------------- the loop

cow_List<inp_Keyword> inp_Parser::Parse(bool strict) {
    omi_Timer timer;
    timer.Start();
    if (!open(m_fileName)) {
        std::fprintf(stderr, "inp_Parser ERROR: could not open file: '%s'\n", m_fileName.CStr());
        throw nex_PrimException<atr_String, 1>(atr("Could not open file %s\n", m_fileName));
    }

    bool stop = false;
    try {
        SkipToNextKeyword(true);
    } catch (inp_EncryptionException const& e) {
        saveFatalError(e.UserReport());
        dropEverything();
        stop = true;
    }

    int memoryErrors = 0;
    while (!stop && !m_endOfFile) {
        try {
            parseOneKeyword(strict);
            continue;
        } catch (...) {
            handleParseFailure(strict, memoryErrors);
        }
        try {
            recoverAtNextKeyword();
        } catch (inp_EncryptionException const& e) {
            saveFatalError(e.UserReport());
            dropEverything();
            stop = true;
        }
    }

    if (memoryErrors > 0)
        saveFatalError(
            atr("Memory errors occured while parsing %s keywords. The errors were likely due to "
                "running "
                "out of physical memory or swap space.",
                memoryErrors));
    timer.Stop();
    if (typ_DebugFlags::GetDebugFlags(kDebugFlag) >= 1) {
        pnt_debugPrint().StartDebug(__FILE__, __LINE__);
        pnt_debugPrint() << "Parse - File: " << m_fileName
                         << "  Elapsed time: " << timer.GetElapsedTime()
                         << "  Decryption time: " << m_decryptionTime
                         << "  CPU time: " << timer.GetTotalCpuTime();
        pnt_debugPrint().EndDebug();
    }
    close();
    return m_keywords;
}

void inp_Parser::parseOneKeyword(bool strict) {
    inp_Keyword keyword = ParseKeyword(strict);
    if (typ_DebugFlags::GetDebugFlags(kDebugFlag) >= 2 && !m_encrypted) {
        pnt_debugPrint().StartDebug(__FILE__, __LINE__);
        pnt_debugPrint() << "Creating keyword: \"" << keyword.Name() << "\".";
        pnt_debugPrint().EndDebug();
    }
    if (keyword.Is(inp_kw_Include)) {
        m_keywords.Concatenate(IncludeFile(keyword, strict));
    } else {
        m_keywords.Append(keyword);
    }
}

// Called from a catch block: sorts the exception in flight by kind.
void inp_Parser::handleParseFailure(bool strict, int& memoryErrors) {
    try {
        throw;
    } catch (inp_NoInputParameterException const& e) {
        saveFatalError(e.UserReport());
    } catch (inp_MissingIncludeFileException const& e) {
        if (strict) saveFatalError(e.UserReport());
    } catch (inp_UnreadableIncludeFileException const& e) {
        saveFatalError(e.UserReport());
    } catch (inp_CircularIncludeFileException const& e) {
        saveFatalError(e.UserReport());
    } catch (inp_ParameterException const& e) {
        // ParseKeyword wraps every parameter exception; one that gets here is a
        // fault of this class, kept as an error rather than thrown at the caller.
        saveError(e.UserReport());
    } catch (inp_KeywordException const& e) {
        saveError(e.UserReport());
    } catch (inp_MemoryException const&) {
        ++memoryErrors;
    } catch (std::bad_alloc const&) {
        ++memoryErrors;
    } catch (...) {
        saveError(atr("Unknown exception"));
    }
}

void inp_Parser::dropEverything() {
    m_keywords.Clear();
    m_skippedDataLines.Clear();
}

void inp_Parser::saveError(atr_String const& message) {
    if (m_errors.Length() < kMessageLimit) {
        m_errors.Append(message);
    } else if (m_errors.Length() == kMessageLimit) {
        m_errors.Append(message);
        m_errors.Append(atr("No more (non-fatal) errors will be reported ..."));
    }
}

void inp_Parser::saveFatalError(atr_String const& message) {
    if (m_fatalErrors.Length() < kMessageLimit) {
        m_fatalErrors.Append(message);
    } else if (m_fatalErrors.Length() == kMessageLimit) {
        m_fatalErrors.Append(message);
        m_fatalErrors.Append(atr("No more fatal errors will be reported ..."));
    }
}
