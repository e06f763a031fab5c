#include <gtest/gtest.h>

#include "support/ZELBasException.h"
#include "support/utl_CommandLine.h"

namespace {

void parse(utl_CommandLine& options, std::vector<char const*> arguments) {
    arguments.insert(arguments.begin(), "host");
    options.Parse(static_cast<int>(arguments.size()), arguments.data());
}

}  // namespace

TEST(CommandLineParse, AcceptsEveryDocumentedForm) {
    utl_CommandLine options;
    parse(options, {"job=beam", "-indir", "/lib", "--resultsFormat=odb", "-x=a=b", "--cpus", "4",
                    "interactive", "-verbose", "-scale", "-1.5", "--quiet"});
    EXPECT_EQ(options.ConstGetValue("job"), "beam");
    EXPECT_EQ(options.ConstGetValue("indir"), "/lib");
    EXPECT_EQ(options.ConstGetValue("resultsFormat"), "odb");
    EXPECT_EQ(options.ConstGetValue("x"), "a=b");
    EXPECT_EQ(options.ConstGetValue("cpus"), "4");
    EXPECT_EQ(options.ConstGetValue("interactive"), "");
    EXPECT_EQ(options.ConstGetValue("verbose"), "");  // followed by an option: a flag
    EXPECT_EQ(options.ConstGetValue("scale"), "-1.5");
    EXPECT_EQ(options.ConstGetValue("quiet"), "");
    EXPECT_EQ(options.Size(), 9);
    EXPECT_FALSE(options.IsMember("host"));
}

TEST(CommandLineParse, LaterValuesWinAndEmptyNamesAreIgnored) {
    utl_CommandLine options;
    parse(options, {"a=1", "--", "=x", "a=2", "b="});
    EXPECT_EQ(options.ConstGetValue("a"), "2");
    EXPECT_EQ(options.ConstGetValue("b"), "");
    EXPECT_EQ(options.Size(), 2);
}

TEST(CommandLineStore, MissingOptionIsAFaultOfTheCaller) {
    utl_CommandLine options;
    options.SetValue("indir", "/lib");
    options.Remove("indir");
    EXPECT_FALSE(options.IsMember("indir"));
    try {
        options.ConstGetValue("indir");
        FAIL() << "no assertion";
    } catch (ZELBasAssertException const& e) {
        EXPECT_EQ(e.Condition(), "IsMember(name)");
    }
}

TEST(CommandLineStore, ValueHandedOutSharesNothingWithTheStore) {
    utl_CommandLine& options = utl_CommandLine::Instance();
    options.SetValue("resultsFormat", "odb");
    cow_String first = options.ConstGetValue("resultsFormat");
    cow_String second = options.ConstGetValue("resultsFormat");
    EXPECT_FALSE(first.SharesWith(second));
    EXPECT_EQ(first.UseCount(), 1);
    options.Clear();
    EXPECT_EQ(options.Size(), 0);
}
