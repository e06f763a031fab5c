#pragma once
// How an inp_InputFile reads its deck: the settings every stage of the road
// takes from its owner, in one record, instead of from process-wide state.

#include "support/cow_String.h"

struct inp_InputFileOptions {
    // Directory searched for include and data files that are not found as
    // written. Empty: only the name as written is tried.
    cow_String includePath;
    // Strict parse: unknown parameters, bad values and missing include files
    // are errors, and an encrypted file must decipher cleanly. A lenient
    // parse lets them pass and only lists missing include files.
    bool strictParse = true;
    // Keywords are marked as read for a scripting language.
    bool forScripting = false;
    // The parser keeps the data lines of every keyword; false keeps only
    // those of *HEADING and *STEP (fast when only keywords are wanted).
    bool bulk = true;
    // Expansion converts *NODE and *ELEMENT data to their compact forms;
    // false leaves data as it was read.
    bool bulkConversion = true;
    // Results go to the results database (the default) rather than only to
    // a simulation file; rules of the symmetric model generation depend on it.
    bool resultsFormatOdb = true;
    // Stages remove the records they blanked from the keyword list; false
    // keeps them in place (a scripting caller sees every record read).
    bool discardBlankedKeywords = true;
    // The deck is read for the interactive pre-processor, which reads the
    // keywords' data itself: the extraction keeps the data lines of parts,
    // and the mesh readers keep its conventions (an empty connector field).
    bool atelierCompatible = false;

    // The options of a new job of the host: the defaults above, with the
    // results format taken from the host's command line (`resultsFormat`;
    // anything but "odb" means no results database).
    static inp_InputFileOptions FromHostCommandLine();
    // The road of the flat scripting entry: a lenient parse, data kept as
    // read, blanked records kept.
    static inp_InputFileOptions ForScripting(cow_String const& includePath, bool bulk);
};
