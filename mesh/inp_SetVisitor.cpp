#include "mesh/inp_SetVisitor.h"

#include <cstdlib>

#include "mesh/inp_SetRanges.h"
#include "mesh/inp_Utils.h"
#include "support/ZELBasAssert.h"
#include "support/inpM_Utils.h"
#include "support/pnt_PrettyPrint.h"
#include "support/typ_DebugFlags.h"

namespace {

// The synthetic instance that holds the model of a flat deck: a plain name at
// the assembly level that is no set there is sought in it.
char const kFakeInstance[] = "PART-1-1";

bool debugSets() {
    return typ_DebugFlags::GetDebugFlags(typ_DebugFlags::kDeckFlag) >= 2;
}

bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

void appendRange(cow_List<int>& ids, inp_IdRange const& range) {
    ids.Reserve(range.count);  // takes effect on an empty list only
    int id = range.start;
    for (int i = 0; i < range.count; ++i, id += range.step) ids.Append(id);
}

// The ids a set holds of its own level, into `set`: shared storage when both
// are sorted, else one list.
void addOwnIds(inpM_BaseSet& set, inpM_BaseSet const& found) {
    if (found.DynTypeId() == inpM_SORTED_SET)
        set.Add(static_cast<inpM_SortedSet const&>(found).ConstGetIdsGrid());
    else
        set.Add(found.ConstGetIdList());
}

// Ids gathered by instance while a block is read, added to the set at the end
// with one call per instance.
class InstanceIds {
  public:
    cow_List<int>& Of(cow_String const& instance) {
        if (!m_ids.IsMember(instance)) m_ids.Insert(instance, cow_List<int>());
        return m_ids.Get(instance);
    }
    void AddTo(inpM_BaseSet& set) const {
        m_ids.ForEachSorted([&](cow_String const& instance, cow_List<int> const& ids) {
            if (!ids.IsEmpty()) set.Add(instance, ids);
        });
    }

  private:
    cow_Map<cow_String, cow_List<int>> m_ids;
};

cow_String upper(cow_String text) {
    return text.ToUpper();
}

}  // namespace

inp_SetVisitor::inp_SetVisitor(inpM_SetMap const& sets, cow_String const& partName)
    : m_setMap(sets) {
    m_partName = partName;
}

inp_SetVisitor::~inp_SetVisitor() = default;

bool inp_SetVisitor::IsValidInstanceName(cow_String const& name) const {
    return m_setMap.HasInstance(name) || (!CurrentName().IsEmpty() && name == CurrentName());
}

cow_String inp_SetVisitor::SetKeywordName() const {
    cow_String name = KeywordName();
    if (name == "*NODE") return "*NSET";
    if (name == "*ELEMENT") return "*ELSET";
    return name;
}

// -- storing ------------------------------------------------------------------------

bool inp_SetVisitor::checkSetName(cow_String const& name) {
    char const first = name[0];  // "" gives its terminating zero
    if (!isLetter(first) && first != '"' && first != '_') {
        AddError(atr("Invalid set name \"%1$s\".", name));
        return false;
    }
    if (name.Length() > kMaxSetName) {
        AddError(atr("Set name  \"%1$s\" cannot be more than 80 characters.", name));
        return false;
    }
    return true;
}

void inp_SetVisitor::addSet(cow_String const& scope, cow_String const& name,
                            inpM_SetHandle const& set, inpM_SetMap& sets, bool replace) {
    if (!checkSetName(name) || set.IsNull()) return;
    bool const assembly = scope.IsEmpty();
    bool const debugging = debugSets();
    // A replacing set needs the one it replaces only for the debug line: in a
    // deck of a million sets each search of the name tree is a cost of its own.
    inpM_SetHandle const* existing = nullptr;
    if (!replace || debugging)
        existing = assembly ? sets.ConstGetSetMap().Find(name) : sets.FindNestedSet(scope, name);

    inpM_SetHandle stored = set;
    if (!replace && existing) {
        stored = *existing;  // the copy takes the union; sharers keep the old set
        stored.Get().Add(*set);
    }
    if (debugging) {
        pnt_debugPrint().StartDebug(__FILE__, __LINE__);
        pnt_debugPrint() << (existing && !replace ? "AddSet: Adding set "
                                                  : "AddSet: Adding new set ")
                         << name.CStr();
        if (assembly)
            pnt_debugPrint() << " in assembly";
        else
            pnt_debugPrint() << (existing && !replace ? " to existing set in part/instance "
                                                      : " in part/instance ")
                             << scope.CStr();
        pnt_debugPrint().EndDebug();
    }
    if (assembly)
        sets.InsertSet(name, stored);
    else
        sets.InsertNestedSet(scope, name, stored);
}

void inp_SetVisitor::AddPartSet(cow_String const& name, inpM_SetHandle const& set, bool replace) {
    AddPartSet(name, set, m_setMap, replace);
}

void inp_SetVisitor::AddAssySet(cow_String const& name, inpM_SetHandle const& set, bool replace) {
    AddAssySet(name, set, m_setMap, replace);
}

void inp_SetVisitor::AddPartSet(cow_String const& name, inpM_SetHandle const& set,
                                inpM_SetMap& sets, bool replace) {
    ZELBAS_ASSERT_TEXT(CurrentName().Length() > 0, "currentName.Length() > 0");
    addSet(CurrentName(), name, set, sets, replace);
}

// Not tied to a scope: a set of the assembly level may be stored from inside
// an instance too (the restart subclass finds the owner of a set that way).
void inp_SetVisitor::AddAssySet(cow_String const& name, inpM_SetHandle const& set,
                                inpM_SetMap& sets, bool replace) {
    addSet(cow_String(), name, set, sets, replace);
}

// -- reading inside a part or instance ----------------------------------------------

inpM_SetHandle inp_SetVisitor::ReadIdsAndSetNames(inp_Keyword const& keyword, bool internal,
                                                  bool searchAssembly) {
    return readIdsAndSetNames(keyword, internal, false, searchAssembly);
}

inpM_SetHandle inp_SetVisitor::ReadUnsortedIdsAndSetNames(inp_Keyword const& keyword, bool internal,
                                                          bool searchAssembly) {
    return readIdsAndSetNames(keyword, internal, true, searchAssembly);
}

inpM_SetHandle inp_SetVisitor::readIdsAndSetNames(inp_Keyword const& keyword, bool internal,
                                                  bool unsorted, bool searchAssembly) {
    ZELBAS_ASSERT_TEXT(CurrentName().Length() > 0, "currentName.Length() > 0");
    inpM_SetHandle result = CreateSet(internal, unsorted);
    inpM_BaseSet& set = result.Get();
    inp_DataArray const& data = keyword.Data();
    cow_List<int> ids;  // literal ids, and for an unsorted set the named ones in place
    cow_List<cow_String> invalid, missing;

    // A named set's ids: in place for the unsorted form, straight into the
    // set for the sorted one. A set of the assembly level gives its own ids.
    // For the unsorted form two readings of the rule meet: one addition of
    // all literal ids at the end would put them behind every named set, but
    // an unsorted set exists to keep the order written. The order written
    // wins here: ids and named sets stand as the data has them, and the one
    // addition at the end takes the whole list in that order.
    auto take = [&](inpM_BaseSet const& found, bool ownIdsOnly) {
        if (unsorted)
            ids.Concatenate(found.ConstGetIdList());
        else if (ownIdsOnly)
            addOwnIds(set, found);
        else
            set.Add(found);
    };

    for (int i = 0; i < data.Rows(); ++i) {
        for (int j = 0; j < data.Cols(i); ++j) {
            // One look at the type per value: it is also the test for an
            // empty field, and an id is converted once.
            inp_Types::typeEnm const type = data.Type(i, j);
            if (type == inp_Types::inp_NONE) continue;
            if (type == inp_Types::inp_STRING) {
                cow_String const name = data.AsString(i, j);
                cow_String scope;
                if (searchAssembly) {
                    if (!m_setMap.SearchAssemblyAndInstancesForSet(name, scope))
                        missing.Append(name);
                    else if (scope.IsEmpty())
                        take(*m_setMap.ConstGetSet(name), true);
                    else
                        take(*m_setMap.ConstGetNestedSet(scope, name), false);
                } else if (auto const* found = m_setMap.FindNestedSet(CurrentName(), name)) {
                    take(**found, false);
                } else {
                    missing.Append(name);
                }
                continue;
            }
            int const id = type == inp_Types::inp_INTEGER ? data.AsInt(i, j) : 0;
            if (type == inp_Types::inp_INTEGER && id <= kMaxId)
                ids.Append(id);
            else
                invalid.Append(data.AsStringVerbatim(i, j));
        }
    }
    if (!ids.IsEmpty()) set.Add(ids);
    if (!invalid.IsEmpty())
        AddError(inp_Utils::MessageInKeyword(keyword, atr("Invalid data"), invalid));
    if (!missing.IsEmpty())
        AddError(inp_Utils::MessageInKeyword(
            keyword, atr("The following sets specified do not exist"), missing));
    return result;
}

inpM_SetHandle inp_SetVisitor::GenerateSet(inp_DataArray const& data, bool internal,
                                           bool unsorted) {
    cow_List<atr_String> errors;
    inpM_SetHandle result;
    if (unsorted) {
        result = CreateSet(inp_Utils::GenerateUnsortedSetIds(data, SetKeywordName(), errors),
                           internal, true);
    } else {
        inpM_OmiSet const ids = inp_Utils::GenerateSetIds(data, SetKeywordName(), errors);
        result = inpM_SetHandle(
            new inpM_SortedSet(ids, internal ? inpM_INTERNAL_SET : inpM_ORDINARY_SET));
    }
    for (atr_String const& error : errors) AddError(error);
    return result;
}

// -- reading at the assembly level ---------------------------------------------------

inpM_SetHandle inp_SetVisitor::GenerateAssemblySet(inp_Keyword const& keyword, bool internal,
                                                   bool unsorted) {
    ZELBAS_ASSERT_TEXT(CurrentName().Length() == 0, "currentName.Length() == 0");
    inpM_SetHandle result = CreateSet(internal, unsorted);
    inp_DataArray const& data = keyword.Data();
    cow_String const keywordName = SetKeywordName();
    // The set's name for the message about a short row. The parameters are
    // kept by name, not in the order written; a *NSET with GENERATE cannot
    // carry ELSET and an *ELSET carries no NSET, so NSET before ELSET picks
    // the right one for either keyword.
    cow_String const setName =
        keyword.GetParameterAsString("nset", keyword.GetParameterAsString("elset", ""));

    cow_List<int> ids;
    InstanceIds instanceIds;
    cow_List<atr_String> errors;
    cow_List<cow_String> missing;
    inp_ScopedRange row;
    for (int i = 0; i < data.Rows(); ++i) {
        int columns[3];
        int const n = inp_NonEmptyColumns(data, i, columns);
        if (n == 1) {
            errors.Append(
                atr("Not enough data provided to generate the %1$s: %2$s", keywordName, setName));
            continue;
        }
        if (!inp_ReadScopedRange(data, i, keywordName, errors, row)) continue;
        if (row.instance.IsEmpty()) {
            appendRange(ids, row.range);
        } else if (IsValidInstanceName(row.instance)) {
            appendRange(instanceIds.Of(row.instance), row.range);
        } else {
            missing.Append(data.AsString(i, columns[0]));
        }
    }
    inpM_BaseSet& set = result.Get();
    if (!ids.IsEmpty()) set.Add(ids);
    instanceIds.AddTo(set);
    // This reader has the keyword at hand, so the messages of the rows name
    // its file and line as well.
    for (atr_String const& error : errors) AddError(inp_Utils::MessageInKeyword(keyword, error));
    if (!missing.IsEmpty())
        AddError(inp_Utils::MessageInKeyword(keyword, atr("The following sets/ids do not exist"),
                                             missing));
    return result;
}

inpM_SetHandle inp_SetVisitor::ReadAssemblyIdsAndSetNames(inpM_SetMap const& sets,
                                                          inp_Keyword const& keyword,
                                                          bool internal) {
    return readAssemblyIdsAndSetNames(sets, keyword, internal, false);
}

inpM_SetHandle inp_SetVisitor::ReadUnsortedAssemblyIdsAndSetNames(inpM_SetMap const& sets,
                                                                  inp_Keyword const& keyword,
                                                                  bool internal) {
    return readAssemblyIdsAndSetNames(sets, keyword, internal, true);
}

inpM_SetHandle inp_SetVisitor::readAssemblyIdsAndSetNames(inpM_SetMap const& sets,
                                                          inp_Keyword const& keyword, bool internal,
                                                          bool unsorted) {
    ZELBAS_ASSERT_TEXT(CurrentName().Length() == 0, "currentName.Length() == 0");
    inpM_SetHandle result = CreateSet(internal, unsorted);
    inpM_BaseSet& set = result.Get();
    inp_DataArray const& data = keyword.Data();
    cow_List<int> ids;
    InstanceIds instanceIds;
    cow_List<cow_String> missing;

    // A set's ids, under `instance` or (empty) at the assembly level. The
    // unsorted form gathers them in place, the sorted one adds at once.
    auto take = [&](cow_String const& instance, inpM_BaseSet const& found) {
        if (!unsorted) {
            if (instance.IsEmpty())
                set.Add(found);
            else
                set.Add(instance, found);
            return;
        }
        if (!instance.IsEmpty()) {
            instanceIds.Of(instance).Concatenate(found.ConstGetIdList());
            return;
        }
        ids.Concatenate(found.ConstGetAssemblyIdList());
        found.ConstGetInstanceIdLists().ForEachSorted(
            [&](cow_String const& name, cow_List<int> const& list) {
                instanceIds.Of(name).Concatenate(list);
            });
    };

    for (int i = 0; i < data.Rows(); ++i) {
        for (int j = 0; j < data.Cols(i); ++j) {
            if (data.IsNone(i, j)) continue;
            cow_String const value = data.AsString(i, j);
            cow_List<cow_String> const pieces = inp_Utils::SplitScopedSet(value);
            int const n = pieces.Length();
            if (n == 1) {
                // A number that is no label (ten digits, say) names no set:
                // it is missing like a name found nowhere.
                bool const name = !inp_Utils::IsId(value);
                if (data.Type(i, j) == inp_Types::inp_INTEGER) {
                    ids.Append(data.AsInt(i, j));
                } else if (name && sets.HasSet(value)) {
                    take(cow_String(), *sets.ConstGetSet(value));
                } else if (auto const* found =
                               name ? sets.FindNestedSet(kFakeInstance, value) : nullptr) {
                    take(kFakeInstance, **found);
                } else {
                    missing.Append(value);
                }
                continue;
            }
            if (!inp_Utils::IsScopedSetName(pieces)) {
                // instance.id: the ids of every piece after the instance.
                if (!IsValidInstanceName(pieces[0])) {
                    missing.Append(value);
                    continue;
                }
                cow_List<int>& list = instanceIds.Of(pieces[0]);
                for (int k = 1; k < n; ++k) list.Append(std::atoi(pieces[k].CStr()));
                continue;
            }
            // [assembly.]instance.set
            if (n >= 3 && upper(pieces[0]) != upper(m_assemblyName)) {
                missing.Append(value);
                continue;
            }
            cow_String instance = pieces[n - 2];
            cow_String name = pieces[n - 1];
            if (!sets.HasNestedSet(instance, name)) {
                instance = inpM_Utils::RemoveQuotes(instance);
                name = inpM_Utils::RemoveQuotes(name);
            }
            if (auto const* found = sets.FindNestedSet(instance, name))
                take(instance, **found);
            else
                missing.Append(value);
        }
    }
    if (!ids.IsEmpty()) set.Add(ids);
    instanceIds.AddTo(set);
    if (!missing.IsEmpty())
        AddError(inp_Utils::MessageInKeyword(keyword, atr("The following sets/ids do not exist"),
                                             missing));
    return result;
}

// -- accumulating forms ---------------------------------------------------------------

inpM_SetHandle const* inp_SetVisitor::existingPartSet(cow_String const& name) const {
    ZELBAS_ASSERT_TEXT(CurrentName().Length() > 0, "currentName.Length() > 0");
    return m_setMap.FindNestedSet(CurrentName(), name);
}

// The block's result replaces the set in this visitor's own map, so that is
// where the existing set is sought, whatever map the names are read from.
inpM_SetHandle const* inp_SetVisitor::existingAssemblySet(cow_String const& name) const {
    ZELBAS_ASSERT_TEXT(CurrentName().Length() == 0, "currentName.Length() == 0");
    return m_setMap.ConstGetSetMap().Find(name);
}

inpM_SetHandle inp_SetVisitor::accumulationBase(inpM_SetHandle const* existing, bool unsorted) {
    if (!existing || existing->IsNull()) return inpM_SetHandle();
    inpM_SetHandle copy = *existing;  // shares until the block is added
    if (copy->IsUnsorted() && !unsorted) ConvertToSorted(copy);
    return copy;
}

inpM_SetHandle inp_SetVisitor::GenerateSetAccumulate(cow_String const& name,
                                                     inp_DataArray const& data, bool internal,
                                                     bool unsorted) {
    inpM_SetHandle base = accumulationBase(existingPartSet(name), unsorted);
    if (base.IsNull()) return GenerateSet(data, internal, unsorted);
    inpM_SetHandle const block = GenerateSet(data, base->IsInternal(), base->IsUnsorted());
    base.Get().Add(*block);
    return base;
}

inpM_SetHandle inp_SetVisitor::GenerateAssemblySetAccumulate(cow_String const& name,
                                                             inp_Keyword const& keyword,
                                                             bool internal, bool unsorted) {
    inpM_SetHandle base = accumulationBase(existingAssemblySet(name), unsorted);
    if (base.IsNull()) return GenerateAssemblySet(keyword, internal, unsorted);
    inpM_SetHandle const block =
        GenerateAssemblySet(keyword, base->IsInternal(), base->IsUnsorted());
    base.Get().Add(*block);
    return base;
}

inpM_SetHandle inp_SetVisitor::ReadIdsAndSetNamesAccumulate(cow_String const& name,
                                                            inp_Keyword const& keyword,
                                                            bool internal, bool unsorted,
                                                            bool searchAssembly) {
    inpM_SetHandle base = accumulationBase(existingPartSet(name), unsorted);
    if (base.IsNull()) return readIdsAndSetNames(keyword, internal, unsorted, searchAssembly);
    inpM_SetHandle const block =
        readIdsAndSetNames(keyword, base->IsInternal(), base->IsUnsorted(), searchAssembly);
    base.Get().Add(*block);
    return base;
}

inpM_SetHandle inp_SetVisitor::ReadAssemblyIdsAndSetNamesAccumulate(cow_String const& name,
                                                                    inpM_SetMap const& sets,
                                                                    inp_Keyword const& keyword,
                                                                    bool internal, bool unsorted) {
    inpM_SetHandle base = accumulationBase(existingAssemblySet(name), unsorted);
    if (base.IsNull()) return readAssemblyIdsAndSetNames(sets, keyword, internal, unsorted);
    inpM_SetHandle const block =
        readAssemblyIdsAndSetNames(sets, keyword, base->IsInternal(), base->IsUnsorted());
    base.Get().Add(*block);
    return base;
}

// -- INSTANCE ----------------------------------------------------------------------------

// The parameter stays on the keyword: later stages that write the deck back
// keep what the user wrote. The rewrite is therefore not to be repeated on
// the same keyword; each *NSET or *ELSET is read once per extraction.
void inp_SetVisitor::ProcessInstanceParameter(inp_Keyword& keyword) {
    if (!CurrentName().IsEmpty()) return;
    inp_Item const* parameter = keyword.Parameters().Find("instance");
    if (!parameter || parameter->Type() == inp_Types::inp_NONE) return;
    cow_String prefix = parameter->AsString();
    prefix.append('.');
    bool const generate = keyword.HasParameter("generate");

    inp_DataArray const& data = keyword.Data();
    inp_DataArray scoped;
    for (int i = 0; i < data.Rows(); ++i) {
        cow_List<cow_String> items;
        items.Reserve(data.Cols(i));
        for (int j = 0; j < data.Cols(i); ++j) {
            if (data.IsNone(i, j) || (generate && j == 2)) {
                items.Append(data.AsStringVerbatim(i, j));
            } else {
                items.Append(prefix + data.AsStringVerbatim(i, j));
            }
        }
        scoped.Append(items);
    }
    keyword.SetData(scoped);
}

bool CheckExistenceOfSet(cow_String const& name, cow_String& scope, inpM_SetMap const& sets,
                         bool searchAssembly) {
    if (searchAssembly) return sets.SearchAssemblyAndInstancesForSet(name, scope);
    return sets.HasNestedSet(scope, name);
}
