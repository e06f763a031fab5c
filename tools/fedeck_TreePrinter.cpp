#include "tools/fedeck_TreePrinter.h"

#include "deck/inp_Keyword.h"
#include "support/eli_eostream.h"

namespace {

// Large writes: a printed deck may run to millions of lines.
constexpr int kLineBufferLimit = 64 << 10;

void printWithheld(eli_eostream& out, inp_Keyword const& keyword) {
    inp_Keyword header = keyword;  // shares the data; the blank data below is this copy's only
    header.SetData(inp_DataArray());
    header.Print(out, false);
    if (keyword.Data().Rows() > 0) out.Write(fedeck_TreePrinter::kWithheldNote);
}

void printKeywords(eli_eostream& out, cow_List<inp_Keyword> const& keywords) {
    for (inp_Keyword const& keyword : keywords) {
        if (keyword.IsEncrypted())
            printWithheld(out, keyword);
        else
            keyword.Print(out, false);
        printKeywords(out, keyword.Suboptions());
    }
}

}  // namespace

void fedeck_TreePrinter::Print(aio_ostream& out, cow_List<inp_Keyword> const& keywords) {
    eli_eostream lines(out, kLineBufferLimit);
    printKeywords(lines, keywords);
}
