#pragma once
// `fedeck check DECK...`: several decks checked at once, each on a thread of
// its own, their reports written in the order the decks were given.

class aio_ostream;
class fedeck_Report;
struct fedeck_Arguments;

// Writes the report of one checked deck in the format the arguments ask for
// (text, one JSON line, annotations, or a SARIF log of this deck alone) and
// returns the exit status it stands for.
int fedeck_WriteCheckReport(fedeck_Report const& report, fedeck_Arguments const& arguments,
                            aio_ostream& out);

// Checks every deck of `arguments.operands` as a new job up to
// `arguments.until`, at most `arguments.jobs` at once (all cores when 0).
// Reports go to `out` in operand order, each as soon as it and those before
// it are done; after more than one deck, a closing summary (decks, with
// errors, with warnings, unreadable, seconds). A deck that cannot be read
// is reported so in its place and the others are still checked; a deck
// given twice is checked once, with a note on `err`, as is a progress line
// when `err` is the program's own standard error and that is a terminal.
// Returns the worst exit status of all decks.
int fedeck_CheckDecks(fedeck_Arguments const& arguments, aio_ostream& out, aio_ostream& err);
