#pragma once
#include <exception>

#include "support/atr_String.h"

// Root of every exception of the system. Derives from std::exception so that
// code outside the system can catch it generically; what() gives the
// developer's report.
class ZELBasException : public std::exception {
  public:
    ZELBasException() = default;
    ~ZELBasException() override = default;

    // The report meant for the user of the program, and the fuller one meant for
    // its developer (with the place the exception was thrown from, if known).
    virtual atr_String UserReport() const { return atr_String("Internal error"); }
    virtual atr_String DeveloperReport() const;
    // Records where the exception is thrown from, then throws it.
    [[noreturn]] virtual void Throw(char const* file, int line);

    char const* what() const noexcept override;

  protected:
    char const* m_throwFile = nullptr;
    int m_throwLine = 0;

  private:
    mutable cow_String m_what;
};

// An exception with a numeric code and a dynamic type identity.
class nex_Exception : public ZELBasException {
  public:
    virtual int GetCode() const { return 0; }
    virtual char const* DynTypeId() const { return "nex_Exception"; }
    // Writes the developer report to the error stream.
    virtual void DBWrite() const;
};

// An exception that carries a message. The deck's own exceptions derive from
// nex_PrimException<atr_String, 1>, so one handler catches them all.
template <class Message, int Code>
class nex_PrimException : public nex_Exception {
  public:
    nex_PrimException() = default;
    explicit nex_PrimException(Message const& message) : m_message(message) {}

    Message const& AsString(ZELBasStringMode = zel_DefaultStringMode) const { return m_message; }
    void SetMessage(Message const& message) { m_message = message; }
    int GetCode() const override { return Code; }
    char const* DynTypeId() const override { return "nex_PrimException"; }
    atr_String UserReport() const override { return atr_String(m_message); }
    atr_String DeveloperReport() const override { return atr_String(m_message); }

    // A copy of the same dynamic type, owned by the caller.
    virtual nex_PrimException* Copy() const { return new nex_PrimException(*this); }
    // Throws this exception again as its dynamic type.
    [[noreturn]] virtual void Propagate() const { throw *this; }

  private:
    Message m_message;
};

// What a violated internal condition raises; the message is the condition text.
class ZELBasAssertException : public ZELBasException {
  public:
    ZELBasAssertException(cow_String const& condition, char const* file, int line);
    cow_String const& Condition() const { return m_condition; }
    atr_String UserReport() const override;
    atr_String DeveloperReport() const override;

  private:
    cow_String m_condition;
};
