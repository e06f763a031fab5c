#include <gtest/gtest.h>

#include "support/pnt_PrettyPrint.h"

TEST(PrettyPrintEntry, EntryIsOneLinePrefixedByFileNameAndLine) {
    aio_ostringstream out;
    pnt_PrettyPrint& printer = pnt_debugPrint();
    printer.SetStream(&out);
    printer.StartDebug("/src/parser/inp_Parser.cpp", 120);
    printer << "Parse - File: " << cow_String("deck.inp") << "  Elapsed time: " << 0.25;
    printer.EndDebug();
    printer.StartDebug("local.cpp", 3);
    printer << "Creating keyword: \"node\".";
    printer.StartDebug("local.cpp", 4);  // ends the open entry first
    printer << 5;
    printer.EndDebug();
    printer.SetStream(nullptr);
    EXPECT_EQ(out.Str(),
              "inp_Parser.cpp:120: Parse - File: deck.inp  Elapsed time: 0.25\n"
              "local.cpp:3: Creating keyword: \"node\".\n"
              "local.cpp:4: 5\n");
}
