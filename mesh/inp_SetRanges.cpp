// Generated sets: rows of start, end and increment turned into ids.

#include "mesh/inp_SetRanges.h"

#include <cstdlib>

#include "mesh/inp_Utils.h"
#include "support/cow_Map.h"

namespace {

constexpr long long kMaxLabel = 999999999;

char const kFewerThanTwo[] =
    "There are fewer than 2 items on a data line for which a generation sequence (start id, end "
    "id, optional increment number) is expected.  The keyword in question is related to %s.  "
    "Please check input data.";
char const kBadIncrement[] =
    "Increment of %1$s cannot be used to step from %2$s to %3$s on %4$s keyword.";
// Labels have nine digits at most. A range reaching beyond them is no set of
// labels, and generating it could ask for billions of ids, so it is refused
// with a message of its own.
char const kTooLong[] = "The ids %1$s to %2$s on %3$s keyword exceed 9 digits.";
char const kInstancesDiffer[] =
    "The start and end id instance names must match when generating assembly %1$s ids: %2$s, %3$s";

cow_String text(long long value) {
    return cow_String::FromInt(value);
}

// The values of a row of plain ids, empty fields left out: up to three in
// `values`, the count of all of them returned.
int rowValues(inp_DataArray const& data, int row, long long values[3]) {
    int columns[3];
    int const n = inp_NonEmptyColumns(data, row, columns);
    for (int k = 0; k < n && k < 3; ++k) values[k] = data.AsInt(row, columns[k]);
    return n;
}

// The instance of a scoped value and its id: the last piece is read by atoi,
// what stands before its period is the instance (empty without a period).
void splitScopedId(cow_String const& value, cow_String& instance, long long& id) {
    cow_List<cow_String> const pieces = inp_Utils::SplitScopedSet(value);
    cow_String const& last = pieces.Last();
    id = std::atoi(last.CStr());
    instance =
        pieces.Length() > 1 ? value.Substr(0, value.Length() - last.Length() - 1) : cow_String();
}

template <class Add>
void forEachId(inp_IdRange const& range, Add add) {
    int id = range.start;
    for (int i = 0; i < range.count; ++i, id += range.step) add(id);
}

cow_String scopedText(cow_String const& instance, int id) {
    if (instance.IsEmpty()) return cow_String::FromInt(id);
    cow_String result = instance;
    result.append('.').append(cow_String::FromInt(id));
    return result;
}

cow_List<cow_String> scopedIds(inp_DataArray const& data, cow_String const& keyword,
                               cow_List<atr_String>& errors, bool sorted) {
    cow_List<cow_String> result;
    // The sorted form is the union: ids of the assembly level first, then
    // those of each instance in ascending order, each ascending and unique.
    cow_Map<cow_String, inpM_OmiSet> byInstance;
    inp_ScopedRange row;
    for (int i = 0; i < data.Rows(); ++i) {
        if (!inp_ReadScopedRange(data, i, keyword, errors, row)) continue;
        if (!sorted) {
            forEachId(row.range, [&](int id) { result.Append(scopedText(row.instance, id)); });
            continue;
        }
        if (!byInstance.IsMember(row.instance)) byInstance.Insert(row.instance, inpM_OmiSet());
        inpM_OmiSet& ids = byInstance.Get(row.instance);
        ids.ReserveAdditional(row.range.count);
        forEachId(row.range, [&](int id) { ids.Insert(id); });
    }
    byInstance.ForEachSorted([&](cow_String const& instance, inpM_OmiSet const& ids) {
        for (inpM_OmiSetIT walk(ids); walk.NotDone(); walk.Next())
            result.Append(scopedText(instance, walk.CurrentItem()));
    });
    return result;
}

}  // namespace

bool inp_MakeIdRange(long long const* values, int n, cow_String const& keyword,
                     cow_List<atr_String>& errors, inp_IdRange& range) {
    if (n < 2) {
        errors.Append(atr(kFewerThanTwo, keyword));
        return false;
    }
    long long const start = values[0];
    long long const end = values[1];
    long long const increment = n > 2 && values[2] != 0 ? values[2] : 1;
    long long const d = end - start;
    if (d != 0 && (d % increment != 0 || (d > 0) != (increment > 0))) {
        errors.Append(atr(kBadIncrement, text(increment), text(start), text(end), keyword));
        return false;
    }
    if (start > kMaxLabel || start < -kMaxLabel || end > kMaxLabel || end < -kMaxLabel) {
        errors.Append(atr(kTooLong, text(start), text(end), keyword));
        return false;
    }
    range.start = static_cast<int>(start);
    // A single id (d = 0) takes any increment; the step then never counts.
    range.step = d == 0 ? 1 : static_cast<int>(increment);
    range.count = static_cast<int>(d / increment + 1);
    return true;
}

int inp_NonEmptyColumns(inp_DataArray const& data, int row, int columns[3]) {
    int n = 0;
    int const cols = data.Cols(row);
    for (int j = 0; j < cols; ++j) {
        if (data.IsNone(row, j)) continue;
        if (n < 3) columns[n] = j;
        ++n;
    }
    return n;
}

bool inp_ReadScopedRange(inp_DataArray const& data, int row, cow_String const& keyword,
                         cow_List<atr_String>& errors, inp_ScopedRange& result) {
    int columns[3];
    int const n = inp_NonEmptyColumns(data, row, columns);
    long long values[3] = {0, 0, 0};
    cow_String startInstance, endInstance;
    if (n > 0) splitScopedId(data.AsString(row, columns[0]), startInstance, values[0]);
    if (n > 1) splitScopedId(data.AsString(row, columns[1]), endInstance, values[1]);
    if (n > 2) values[2] = std::atoi(data.AsString(row, columns[2]).CStr());
    if (!startInstance.IsEmpty() && !endInstance.IsEmpty() && startInstance != endInstance) {
        errors.Append(atr(kInstancesDiffer, keyword, startInstance, endInstance));
        return false;
    }
    if (!inp_MakeIdRange(values, n < 3 ? n : 3, keyword, errors, result.range)) return false;
    result.instance = startInstance.IsEmpty() ? endInstance : startInstance;
    return true;
}

// -- inp_Utils --------------------------------------------------------------------

inpM_OmiSet inp_Utils::GenerateSetRow(cow_List<int> const& values, cow_String const& keyword,
                                      cow_List<atr_String>& errors) {
    long long row[3] = {0, 0, 0};
    int const n = values.Length() < 3 ? values.Length() : 3;
    for (int k = 0; k < n; ++k) row[k] = values[k];
    inpM_OmiSet ids;
    inp_IdRange range;
    if (!inp_MakeIdRange(row, n, keyword, errors, range)) return ids;
    ids.ReserveAdditional(range.count);
    forEachId(range, [&](int id) { ids.Insert(id); });
    return ids;
}

cow_List<int> inp_Utils::GenerateUnsortedSetRow(cow_List<int> const& values,
                                                cow_String const& keyword,
                                                cow_List<atr_String>& errors) {
    long long row[3] = {0, 0, 0};
    int const n = values.Length() < 3 ? values.Length() : 3;
    for (int k = 0; k < n; ++k) row[k] = values[k];
    cow_List<int> ids;
    inp_IdRange range;
    if (!inp_MakeIdRange(row, n, keyword, errors, range)) return ids;
    ids.Reserve(range.count);
    forEachId(range, [&](int id) { ids.Append(id); });
    return ids;
}

inpM_OmiSet inp_Utils::GenerateSetIds(inp_DataArray const& data, cow_String const& keyword,
                                      cow_List<atr_String>& errors) {
    inpM_OmiSet ids;
    long long values[3];
    inp_IdRange range;
    for (int i = 0; i < data.Rows(); ++i) {
        int const n = rowValues(data, i, values);
        if (!inp_MakeIdRange(values, n < 3 ? n : 3, keyword, errors, range)) continue;
        ids.ReserveAdditional(range.count);
        forEachId(range, [&](int id) { ids.Insert(id); });
    }
    return ids;
}

cow_List<int> inp_Utils::GenerateUnsortedSetIds(inp_DataArray const& data,
                                                cow_String const& keyword,
                                                cow_List<atr_String>& errors) {
    cow_List<int> ids;
    long long values[3];
    inp_IdRange range;
    for (int i = 0; i < data.Rows(); ++i) {
        int const n = rowValues(data, i, values);
        if (!inp_MakeIdRange(values, n < 3 ? n : 3, keyword, errors, range)) continue;
        ids.Reserve(range.count);  // the first row's room; later rows grow by blocks
        forEachId(range, [&](int id) { ids.Append(id); });
    }
    return ids;
}

cow_List<cow_String> inp_Utils::GenerateScopedIds(inp_DataArray const& data,
                                                  cow_String const& keyword,
                                                  cow_List<atr_String>& errors) {
    return scopedIds(data, keyword, errors, true);
}

cow_List<cow_String> inp_Utils::GenerateUnsortedScopedIds(inp_DataArray const& data,
                                                          cow_String const& keyword,
                                                          cow_List<atr_String>& errors) {
    return scopedIds(data, keyword, errors, false);
}
