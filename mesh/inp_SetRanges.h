#pragma once
// The rows of a generated set (start, end, optional increment), checked and
// turned into ranges of ids. Shared by the inp_Utils generators and by the
// set visitor, which builds its assembly sets from the same rows.

#include "deck/inp_DataArray.h"
#include "support/atr_String.h"
#include "support/cow_List.h"
#include "support/cow_String.h"

// The ids start, start + step, ... : count of them, the last one the row's end.
struct inp_IdRange {
    int start = 0;
    int step = 1;
    int count = 0;

    int operator[](int i) const { return start + i * step; }
};

// The range of the first `n` values of a row (start, end, increment). With
// fewer than two values, with an increment that cannot step from start to
// end, or with an end beyond nine digits, the message naming `keyword` goes
// to `errors` and the result is false.
bool inp_MakeIdRange(long long const* values, int n, cow_String const& keyword,
                     cow_List<atr_String>& errors, inp_IdRange& range);

// One row of a scoped generation: start and end may be instance.id.
struct inp_ScopedRange {
    cow_String instance;  // empty for ids of the assembly level
    inp_IdRange range;
};

// The non-empty values of a row, at most the first three of them, by their
// column. Returns how many non-empty values the row has in all.
int inp_NonEmptyColumns(inp_DataArray const& data, int row, int columns[3]);

// Reads row `row` of a scoped generation. A row that cannot be generated
// (fewer than two values, a bad increment, start and end in different
// instances) adds its message to `errors` and gives false.
bool inp_ReadScopedRange(inp_DataArray const& data, int row, cow_String const& keyword,
                         cow_List<atr_String>& errors, inp_ScopedRange& result);
