#include "parser/inp_Parser.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <new>
#include <string_view>

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

// Most lines of a deck of small keywords are a dozen characters: on lines
// shorter than this a plain loop over the bytes costs less than a call of
// the library's searches, which win on the long lines of a mesh.
constexpr size_t kShortLine = 32;

// Whether the line holds the marker of an encrypted file. The marker starts
// with two asterisks, which data lines seldom hold and keyword lines seldom
// more than one of: the pair is looked for first.
bool hasEncryptionMarker(char const* line, size_t length) {
    constexpr std::string_view kMarker = "** encrypted input";
    if (length < kMarker.size()) return false;
    std::string_view const text(line, length);
    auto markerAt = [&](size_t at) { return text.compare(at, kMarker.size(), kMarker) == 0; };
    size_t const lastStart = length - kMarker.size();
    if (length < kShortLine) {
        for (size_t at = 0; at <= lastStart; ++at)
            if (line[at] == '*' && line[at + 1] == '*' && markerAt(at)) return true;
        return false;
    }
    for (size_t at = text.find('*'); at <= lastStart; at = text.find('*', at + 1))
        if (line[at + 1] == '*' && markerAt(at)) return true;
    return false;
}

bool isBlankOrLineEnd(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\v' || c == '\f' || c == '\r';
}

bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

}  // namespace

inp_Parser::inp_Parser(cow_String fileName, cow_String includePath, cow_List<cow_String> openFiles,
                       cow_String password, bool strictDecryption, bool bulk, bool forScripting)
    : aio_ifstream(kReadBufferSize),
      m_fileName(fileName),
      m_origin(fileName),
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

    size_t length = 0;
    for (;;) {
        m_buffer[0] = 0;
        aio_istream::getline(m_buffer, kMaxLineLength + 1);
        if (fail()) {
            // Failing with a full buffer means the line goes on; failing with
            // nothing read is the end of the file.
            if (gcount() != kMaxLineLength) return endOfFile();
            discardRestOfLine();
        }
        // The stored count, not a scan for the terminator: a scan of a line
        // just copied costs as much as the copy. Everything downstream reads
        // the line as C text, so a zero byte inside a (binary) line still
        // ends it; only blanks right before such a byte are not trimmed. The
        // marker counts only before a zero byte: the second look, on the rare
        // line that holds it, reads the line as C text.
        length = storedCount();
        bool const encryptedLine =
            m_encrypted || (hasEncryptionMarker(m_buffer, length) &&
                            hasEncryptionMarker(m_buffer, std::strlen(m_buffer)));
        if (encryptedLine) {
            bool wasHeader = m_headerPending;
            Decrypt(m_buffer);
            length = std::strlen(m_buffer);
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
    length -= static_cast<size_t>(line - m_buffer);
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
    // The blanks and letters of the C locale, whatever the caller's locale.
    while (isBlankOrLineEnd(*line)) ++line;
    if (*line != '*') return false;
    ++line;
    while (isBlankOrLineEnd(*line)) ++line;
    return isLetter(*line);
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
    // Most keyword lines stand alone: they are read where they lie in the
    // line buffer, which stays put until the data lines are read.
    cow_String joined;
    std::string_view text(data);
    if (text.ends_with(',')) {
        joined = AppendContinuationLines(data, strict);
        text = joined.View();
    }

    inp_Keyword keyword;
    keyword.SetLineNumber(lineNumber);
    keyword.SetOrigin(m_origin);
    keyword.SetEncrypted(m_encrypted);
    keyword.SetFromScripting(forScripting);
    keyword.SetComments(m_comments);
    m_comments.Clear();
    m_commentsPending = false;

    size_t const comma = text.find(',');
    inp_KeywordResolver::Result const& resolved = m_keywordNames.Resolve(
        text.substr(1, comma == std::string_view::npos ? std::string_view::npos : comma - 1));
    cow_String const& name = resolved.folded;
    // A name that is no keyword is an error of the line, not of the parser:
    // it is kept without a throw, which would cost more than the rest of the
    // line (a deck may hold a million of them), and the caller recovers.
    // Past the limit of the error list the message would be dropped anyway,
    // and is not even worded.
    if (resolved.outcome == inp_KeywordResolver::Outcome::Unknown) {
        if (m_errors.Length() <= kMessageLimit)
            saveError(inp_UnknownKeywordException(lineNumber, m_fileName, name).UserReport());
        return keyword;
    }
    if (resolved.outcome == inp_KeywordResolver::Outcome::Ambiguous) {
        if (m_errors.Length() <= kMessageLimit)
            saveError(inp_AmbiguousKeywordException(lineNumber, m_fileName, name).UserReport());
        return keyword;
    }
    keyword.SetKeyword(resolved.keyword);

    if (comma != std::string_view::npos) {
        std::string_view parameters =
            inp_PatternMatchers::WithoutOuterBlanks(text.substr(comma + 1));
        try {
            ParseParameters(keyword, parameters, strict);
        } catch (inp_ParameterException const& cause) {
            throw inp_KeywordParameterException(lineNumber, m_fileName, cow_String(name).ToUpper(),
                                                cause);
        }
    }
    if (keyword.Is(inp_kw_Include)) return keyword;
    readDataLines(keyword);
    return keyword;
}

void inp_Parser::readDataLines(inp_Keyword& keyword) {
    // The lines of *HEADING and *STEP are titles, kept whole and kept always.
    bool titles = keyword.Is(inp_kw_Heading) || keyword.Is(inp_kw_Step);
    // The array gets its storage with its first line: a keyword without
    // data lines costs none.
    inp_DataArray const& data = keyword.Data();
    readToNextKeyword([&](char const* line) {
        if (IsComment(line)) {
            BufferCommentLine(line);
        } else if (titles) {
            data.AppendRaw(line);
        } else {
            // Only the comments directly in front of the next keyword are its own.
            if (m_commentsPending) {
                m_comments.Clear();
                m_commentsPending = false;
            }
            if (bulk) data.Append(line);
        }
    });
}

// The parameter text is split at commas outside double quotes; each piece
// is trimmed, and empty pieces are dropped. An odd number of quotes leaves the
// last one open, which is refused before any parameter is taken.
void inp_Parser::ParseParameters(inp_Keyword& keyword, std::string_view text, bool strict) {
    if (std::count(text.begin(), text.end(), '"') % 2 != 0)
        throw inp_MissingEndQuoteException(cow_String(text));
    cow_Map<cow_String, inp_Item>& parameters = keyword.GetParameters();
    bool quoted = false;
    size_t start = 0;
    for (size_t i = 0; i <= text.size(); ++i) {
        char const c = i < text.size() ? text[i] : ',';
        if (c == '"') quoted = !quoted;
        if (c != ',' || quoted) continue;
        std::string_view const token =
            inp_PatternMatchers::WithoutOuterBlanks(text.substr(start, i - start));
        start = i + 1;
        if (!token.empty()) addParameter(keyword, parameters, token, strict);
    }
}

void inp_Parser::addParameter(inp_Keyword const& keyword, cow_Map<cow_String, inp_Item>& parameters,
                              std::string_view token, bool strict) {
    size_t const equals = token.find('=');
    std::string_view const written = token.substr(0, equals);
    std::string_view const value =
        equals == std::string_view::npos ? std::string_view() : token.substr(equals + 1);

    cow_String name;
    if (inp_PatternMatch match = inp_PatternMatchers::MatchParam(written)) {
        name = m_names.Fold(match.text);
    } else if (strict) {
        throw inp_InvalidParameterException(cow_String(token));
    } else {
        name = cow_String(written);
    }

    if (parameters.IsMember(name)) {
        atr_String text =
            value.empty()
                ? atr("Repeated parameter: %s.  New definition overrides previous setting.", name)
                : atr("Repeated parameter: %s.  New definition of \"%s\" overrides previous "
                      "setting.",
                      name, cow_String(inp_PatternMatchers::WithoutOuterBlanks(value)));
        m_warnings.Append(inp_MessageInKeyword(keyword, text));
    }

    if (value.empty()) {
        parameters.Insert(name, inp_Item(true));  // NSET and NSET= are the same
        return;
    }
    inp_Item item(value);
    if (item.Type() == inp_Types::inp_NONE && strict)
        throw inp_InvalidParameterValueException(name, cow_String(value));
    parameters.Insert(name, item);
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
            if (parseOneKeyword(strict)) continue;
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

bool inp_Parser::parseOneKeyword(bool strict) {
    inp_Keyword keyword = ParseKeyword(strict);
    if (keyword.Keyword() == inp_kw_UndefinedKeyword) return false;
    if (typ_DebugFlags::GetDebugFlags(kDebugFlag) >= 2 && !m_encrypted) {
        pnt_debugPrint().StartDebug(__FILE__, __LINE__);
        pnt_debugPrint() << "Creating keyword: \"" << keyword.Name() << "\".";
        pnt_debugPrint().EndDebug();
    }
    if (keyword.Is(inp_kw_Include)) {
        m_keywords.Concatenate(IncludeFile(keyword, strict));
    } else {
        m_keywords.Append(std::move(keyword));
    }
    return true;
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
