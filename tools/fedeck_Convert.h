#pragma once
// fedeck convert: the model of a deck after the whole road, written as a
// file that viewers read.

struct fedeck_Arguments;
class aio_ostream;

// Runs the deck of operands[0] and writes its assembled mesh to the .vtu
// file operands[1]. Diagnostics, warnings of what was left out and a
// progress line (a terminal only, after the first second) go to `err`.
// With `leaveModelToProcessExit` the model is not freed (the program ends
// right after). Returns the exit status.
int fedeck_Convert(fedeck_Arguments const& arguments, aio_ostream& err,
                   bool leaveModelToProcessExit);
