#include "pipeline/inp_InputFileOptions.h"

#include "support/utl_CommandLine.h"

inp_InputFileOptions inp_InputFileOptions::FromHostCommandLine() {
    inp_InputFileOptions options;
    utl_CommandLine const& commandLine = utl_CommandLine::Instance();
    cow_String const option("resultsFormat");
    options.resultsFormatOdb =
        !commandLine.IsMember(option) || commandLine.ConstGetValue(option) == cow_String("odb");
    return options;
}

inp_InputFileOptions inp_InputFileOptions::ForScripting(cow_String const& includePath, bool bulk) {
    inp_InputFileOptions options;
    options.includePath = includePath;
    options.strictParse = false;
    options.forScripting = true;
    options.bulk = bulk;
    options.bulkConversion = false;
    options.discardBlankedKeywords = false;
    return options;
}
