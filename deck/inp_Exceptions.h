#pragma once
// The exceptions by which the deck model, the keyword table and the parser
// report a bad deck. All derive from nex_PrimException<atr_String, 1>, so one
// handler catches them all. UserReport() is the message text. The line number
// and file name are for whoever catches the exception; they are not part of
// the message.

#include "support/ZELBasException.h"

using inp_PrimException = nex_PrimException<atr_String, 1>;

// Every class defines Copy (a new object like this one) and Propagate (throw
// a copy of this one as itself).
#define INP_EXCEPTION_COPY_AND_PROPAGATE(Class)    \
    Class* Copy() const override {                 \
        return new Class(*this);                   \
    }                                              \
    [[noreturn]] void Propagate() const override { \
        throw *this;                               \
    }                                              \
    char const* DynTypeId() const override {       \
        return #Class;                             \
    }

// A bad parameter of a keyword line; the parser adds the keyword.
class inp_ParameterException : public inp_PrimException {
  public:
    explicit inp_ParameterException(atr_String const& message) : inp_PrimException(message) {}
    INP_EXCEPTION_COPY_AND_PROPAGATE(inp_ParameterException)
};

class inp_InvalidParameterException : public inp_ParameterException {
  public:
    explicit inp_InvalidParameterException(cow_String const& text);
    INP_EXCEPTION_COPY_AND_PROPAGATE(inp_InvalidParameterException)
};

class inp_InvalidParameterValueException : public inp_ParameterException {
  public:
    inp_InvalidParameterValueException(cow_String const& parameter, cow_String const& value);
    INP_EXCEPTION_COPY_AND_PROPAGATE(inp_InvalidParameterValueException)
};

class inp_MissingEndQuoteException : public inp_ParameterException {
  public:
    explicit inp_MissingEndQuoteException(cow_String const& text);
    INP_EXCEPTION_COPY_AND_PROPAGATE(inp_MissingEndQuoteException)
};

// A failure tied to a keyword line of a file. The message carries the file,
// the line and, where the failure names one, the keyword as its location.
class inp_KeywordException : public inp_PrimException {
  public:
    inp_KeywordException(int line, cow_String const& fileName, atr_String const& message)
        : inp_KeywordException(line, fileName, message, cow_String()) {}
    // `keyword` as the deck wrote it; the location holds it in upper case.
    inp_KeywordException(int line, cow_String const& fileName, atr_String const& message,
                         cow_String const& keyword)
        : inp_PrimException(
              atr_String(message).SetLocation({fileName, line, cow_String(keyword).ToUpper()})),
          m_lineNumber(line),
          m_fileName(fileName) {}
    int LineNumber() const { return m_lineNumber; }
    cow_String const& FileName() const { return m_fileName; }
    INP_EXCEPTION_COPY_AND_PROPAGATE(inp_KeywordException)

  protected:
    int m_lineNumber;
    cow_String m_fileName;
};

class inp_KeywordParameterException : public inp_KeywordException {
  public:
    inp_KeywordParameterException(int line, cow_String const& fileName, cow_String const& keyword,
                                  inp_ParameterException const& cause);
    cow_String const& KeywordName() const { return m_keywordName; }
    INP_EXCEPTION_COPY_AND_PROPAGATE(inp_KeywordParameterException)

  private:
    cow_String m_keywordName;
};

class inp_UnknownKeywordException : public inp_KeywordException {
  public:
    inp_UnknownKeywordException(int line, cow_String const& fileName, cow_String const& keyword);
    cow_String const& KeywordName() const { return m_keywordName; }
    INP_EXCEPTION_COPY_AND_PROPAGATE(inp_UnknownKeywordException)

  private:
    cow_String m_keywordName;
};

class inp_AmbiguousKeywordException : public inp_KeywordException {
  public:
    inp_AmbiguousKeywordException(int line, cow_String const& fileName, cow_String const& keyword);
    cow_String const& KeywordName() const { return m_keywordName; }
    INP_EXCEPTION_COPY_AND_PROPAGATE(inp_AmbiguousKeywordException)

  private:
    cow_String m_keywordName;
};

class inp_InvalidContinuationLineException : public inp_KeywordException {
  public:
    using inp_KeywordException::inp_KeywordException;
    INP_EXCEPTION_COPY_AND_PROPAGATE(inp_InvalidContinuationLineException)
};

class inp_EncryptionException : public inp_KeywordException {
  public:
    using inp_KeywordException::inp_KeywordException;
    INP_EXCEPTION_COPY_AND_PROPAGATE(inp_EncryptionException)
};

class inp_NoInputParameterException : public inp_KeywordException {
  public:
    inp_NoInputParameterException(int line, cow_String const& fileName);
    INP_EXCEPTION_COPY_AND_PROPAGATE(inp_NoInputParameterException)
};

class inp_MissingIncludeFileException : public inp_KeywordException {
  public:
    inp_MissingIncludeFileException(int line, cow_String const& fileName,
                                    cow_String const& includeName);
    INP_EXCEPTION_COPY_AND_PROPAGATE(inp_MissingIncludeFileException)
};

class inp_UnreadableIncludeFileException : public inp_KeywordException {
  public:
    inp_UnreadableIncludeFileException(int line, cow_String const& fileName,
                                       cow_String const& includeName);
    INP_EXCEPTION_COPY_AND_PROPAGATE(inp_UnreadableIncludeFileException)
};

class inp_CircularIncludeFileException : public inp_KeywordException {
  public:
    inp_CircularIncludeFileException(int line, cow_String const& fileName,
                                     cow_String const& includeName);
    INP_EXCEPTION_COPY_AND_PROPAGATE(inp_CircularIncludeFileException)
};

class inp_ParameterizedIncludeFileException : public inp_KeywordException {
  public:
    inp_ParameterizedIncludeFileException(int line, cow_String const& fileName,
                                          cow_String const& includeName);
    INP_EXCEPTION_COPY_AND_PROPAGATE(inp_ParameterizedIncludeFileException)
};

class inp_MemoryException : public inp_PrimException {
  public:
    inp_MemoryException();
    INP_EXCEPTION_COPY_AND_PROPAGATE(inp_MemoryException)
};
