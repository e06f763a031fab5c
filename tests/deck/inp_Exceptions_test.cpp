#include "deck/inp_Exceptions.h"

#include <gtest/gtest.h>

#include <memory>

TEST(DeckExceptionTexts, ParameterFamily) {
    EXPECT_EQ(inp_InvalidParameterException("1a").UserReport(),
              "Invalid parameter: 1a. The parameter may be misspelled, obsolete, or invalid.");
    EXPECT_EQ(inp_InvalidParameterValueException("elset", "a=b").UserReport(),
              "Invalid value \"a=b\" for parameter \"elset\". The value may be misspelled, "
              "obsolete, or invalid.");
    EXPECT_EQ(inp_MissingEndQuoteException("name=\"x").UserReport(),
              "Missing end quote in parameter data \"name=\"x\".");
}

TEST(DeckExceptionTexts, KeywordFamilyKeepsLineAndFileOutOfTheMessage) {
    inp_InvalidParameterException cause("1a");
    inp_KeywordParameterException wrapped(7, "a.inp", "NSET", cause);
    EXPECT_EQ(wrapped.UserReport(),
              "Problem when parsing keyword: NSET     Invalid parameter: 1a. The parameter may "
              "be misspelled, obsolete, or invalid.");
    EXPECT_EQ(wrapped.LineNumber(), 7);
    EXPECT_EQ(wrapped.FileName(), "a.inp");
    EXPECT_EQ(inp_NoInputParameterException(1, "a.inp").UserReport(), "Missing input parameter");
    EXPECT_EQ(inp_MissingIncludeFileException(1, "a", "b.inp").UserReport(),
              "Include file \"b.inp\" does not exist.");
    EXPECT_EQ(inp_UnreadableIncludeFileException(1, "a", "b.inp").UserReport(),
              "Input file \"b.inp\" is unreadable.");
    EXPECT_EQ(inp_CircularIncludeFileException(1, "a", "b.inp").UserReport(),
              "Include file \"b.inp\" has already been included.");
    EXPECT_EQ(inp_ParameterizedIncludeFileException(1, "a", "<f>").UserReport(),
              "Include file \"<f>\" name is parameterized and not substituted.");
    EXPECT_EQ(inp_MemoryException().UserReport(),
              "Memory allocation error. Insufficient physical memory or swap space.");
}

TEST(DeckExceptionHandling, OneHandlerCatchesAllAndPropagateKeepsTheDynamicType) {
    std::unique_ptr<inp_PrimException> copy(inp_CircularIncludeFileException(3, "a", "b").Copy());
    try {
        copy->Propagate();
    } catch (inp_CircularIncludeFileException const& e) {
        EXPECT_EQ(e.LineNumber(), 3);
    } catch (...) {
        FAIL() << "propagated as another type";
    }
    try {
        throw inp_AmbiguousKeywordException(0, "", "el");
    } catch (inp_PrimException const& e) {
        EXPECT_EQ(e.AsString(), "Ambiguous keyword definition \"el\".");
    }
}
