#include "deck/inp_Exceptions.h"

namespace {

// The keyword of the failures of an include file.
constexpr char const* kInclude = "include";

}  // namespace

inp_InvalidParameterException::inp_InvalidParameterException(cow_String const& text)
    : inp_ParameterException(atr(
          "Invalid parameter: %s. The parameter may be misspelled, obsolete, or invalid.", text)) {}

inp_InvalidParameterValueException::inp_InvalidParameterValueException(cow_String const& parameter,
                                                                       cow_String const& value)
    : inp_ParameterException(
          atr("Invalid value \"%s\" for parameter \"%s\". The value may be misspelled, "
              "obsolete, or invalid.",
              value, parameter)) {}

inp_MissingEndQuoteException::inp_MissingEndQuoteException(cow_String const& text)
    : inp_ParameterException(atr("Missing end quote in parameter data \"%s\".", text)) {}

inp_KeywordParameterException::inp_KeywordParameterException(int line, cow_String const& fileName,
                                                             cow_String const& keyword,
                                                             inp_ParameterException const& cause)
    : inp_KeywordException(
          line, fileName,
          atr("Problem when parsing keyword: %s     %s", keyword, cause.UserReport()), keyword),
      m_keywordName(keyword) {}

inp_UnknownKeywordException::inp_UnknownKeywordException(int line, cow_String const& fileName,
                                                         cow_String const& keyword)
    : inp_KeywordException(
          line, fileName,
          atr("Unknown keyword \"%s\". The keyword may be misspelled, obsolete, or invalid.",
              keyword),
          keyword),
      m_keywordName(keyword) {}

inp_AmbiguousKeywordException::inp_AmbiguousKeywordException(int line, cow_String const& fileName,
                                                             cow_String const& keyword)
    : inp_KeywordException(line, fileName, atr("Ambiguous keyword definition \"%s\".", keyword),
                           keyword),
      m_keywordName(keyword) {}

inp_NoInputParameterException::inp_NoInputParameterException(int line, cow_String const& fileName)
    : inp_KeywordException(line, fileName, atr("Missing input parameter"), kInclude) {}

inp_MissingIncludeFileException::inp_MissingIncludeFileException(int line,
                                                                 cow_String const& fileName,
                                                                 cow_String const& includeName)
    : inp_KeywordException(line, fileName, atr("Include file \"%s\" does not exist.", includeName),
                           kInclude) {}

inp_UnreadableIncludeFileException::inp_UnreadableIncludeFileException(
    int line, cow_String const& fileName, cow_String const& includeName)
    : inp_KeywordException(line, fileName, atr("Input file \"%s\" is unreadable.", includeName),
                           kInclude) {}

inp_CircularIncludeFileException::inp_CircularIncludeFileException(int line,
                                                                   cow_String const& fileName,
                                                                   cow_String const& includeName)
    : inp_KeywordException(line, fileName,
                           atr("Include file \"%s\" has already been included.", includeName),
                           kInclude) {}

inp_ParameterizedIncludeFileException::inp_ParameterizedIncludeFileException(
    int line, cow_String const& fileName, cow_String const& includeName)
    : inp_KeywordException(
          line, fileName,
          atr("Include file \"%s\" name is parameterized and not substituted.", includeName),
          kInclude) {}

inp_MemoryException::inp_MemoryException()
    : inp_PrimException(
          atr("Memory allocation error. Insufficient physical memory or swap space.")) {}
