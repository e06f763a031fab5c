#include "continuation/inp_RestartSetVisitor.h"

#include "mesh/inp_Utils.h"
#include "support/cow_Map.h"
#include "support/inpM_Utils.h"

namespace {

cow_String text(char const* value) {
    return cow_String(value);
}

// The ids of a flat model's new set, gathered by instance before they enter
// the set in one block each.
class IdsByInstance {
  public:
    void Add(cow_String const& instance, int id) {
        if (!m_ids.IsMember(instance)) m_ids.Insert(instance, cow_List<int>());
        m_ids.Get(instance).Append(id);
    }
    void MoveInto(inpM_BaseSet& set) const {
        m_ids.ForEachSorted([&set](cow_String const& instance, cow_List<int> const& ids) {
            set.Add(instance, ids);
        });
    }

  private:
    cow_Map<cow_String, cow_List<int>> m_ids;
};

}  // namespace

inp_RestartSetVisitor::inp_RestartSetVisitor(Kind kind, inpM_SetMap const& oldSets,
                                             cow_String const& assemblyName, bool partsModel,
                                             inpM_IdMap const& ids)
    : inp_SetVisitor(oldSets, cow_String()),
      m_kind(kind),
      m_oldSets(oldSets),
      m_originalAssemblyName(assemblyName),
      m_partsModel(partsModel),
      m_ids(ids) {}

cow_String inp_RestartSetVisitor::KeywordName() const {
    return text(m_kind == Kind::NodeSets ? "NSET" : "ELSET");
}

void inp_RestartSetVisitor::VisitNset(inp_Keyword& keyword) {
    if (m_kind == Kind::NodeSets && keyword.HasParameter("nset")) KeywordNsetElset(keyword, "nset");
}

void inp_RestartSetVisitor::VisitElset(inp_Keyword& keyword) {
    if (m_kind == Kind::ElementSets && keyword.HasParameter("elset"))
        KeywordNsetElset(keyword, "elset");
}

// A name the earlier job has: at the assembly level, or scoped (instance.set,
// or with the assembly's name in front). A flat model's sets went to its
// generated instances, where a plain name finds them.
bool inp_RestartSetVisitor::existsInOriginal(cow_String const& name) const {
    cow_String scope;
    if (m_partsModel ? m_oldSets.HasSet(name)
                     : m_oldSets.SearchAssemblyAndInstancesForSet(name, scope))
        return true;
    cow_List<cow_String> pieces = inp_Utils::SplitScopedSet(name);
    if (pieces.Length() > 1 && pieces.ConstGet(0) == m_originalAssemblyName) pieces.RemoveIndex(0);
    if (pieces.Length() == 1) return m_oldSets.HasSet(pieces.ConstGet(0));
    return pieces.Length() == 2 && m_oldSets.HasNestedSet(pieces.ConstGet(0), pieces.ConstGet(1));
}

void inp_RestartSetVisitor::KeywordNsetElset(inp_Keyword& keyword, char const* parameterName) {
    cow_String const name = keyword.GetParameterAsString(parameterName, cow_String());
    bool const generate = keyword.HasParameter("generate");
    bool const internal = keyword.HasParameter("internal");
    if (existsInOriginal(name)) {
        AddError(inp_Utils::MessageInKeyword(
            keyword, atr("Error in *NSET/*ELSET: the set %1$s already exists in the original "
                         "analysis. It cannot be modified upon restart.",
                         name)));
        return;
    }
    if (m_partsModel)
        readPartsModelSet(keyword, name, generate, internal);
    else
        readFlatModelSet(keyword, name, generate, internal);
}

void inp_RestartSetVisitor::readPartsModelSet(inp_Keyword& keyword, cow_String const& name,
                                              bool generate, bool internal) {
    if (m_kind == Kind::NodeSets && keyword.HasParameter("elset")) {
        AddError(inp_Utils::MessageInKeyword(
            keyword,
            atr("The formation of a node set using an element set (*NSET, ELSET=) is currently "
                "not supported in the restart analysis of a job defined in terms of an assembly "
                "of part instances.")));
        return;
    }
    cow_List<cow_String> const pieces = inp_Utils::SplitScopedSet(name);
    if (pieces.Length() < 2 || pieces.Length() > 3) {
        AddError(inp_Utils::MessageInKeyword(
            keyword,
            atr("The complete name of an NSET/ELSET defined upon restart should contain: an "
                "assembly name, an optional instance name, and a set name. The unrecognizable "
                "name in question is %1$s",
                name)));
        return;
    }
    if (pieces.ConstGet(0) != m_originalAssemblyName) {
        AddError(inp_Utils::MessageInKeyword(
            keyword,
            atr("%1$s is not the assembly name in the original analysis.", pieces.ConstGet(0))));
        return;
    }
    cow_String const setName = pieces.ConstGet(pieces.Length() - 1);
    if (pieces.Length() == 2) {
        if (generate) {
            AddError(inp_Utils::MessageInKeyword(
                keyword,
                atr("The GENERATE option on *NSET/*ELSET is not supported when defining an "
                    "assembly level set in a restart input file, for models defined in terms of "
                    "an assembly of part instances. ")));
            return;
        }
        AddAssySet(setName, ReadAssemblyIdsAndSetNames(m_oldSets, keyword, internal), m_newSets,
                   false);
        return;
    }
    if (keyword.HasParameter("instance")) {
        AddError(inp_Utils::MessageInKeyword(
            keyword, atr("When defining a part instance level NSET/ELSET upon restart, the "
                         "INSTANCE parameter should not appear.")));
        return;
    }
    if (!isOriginalInstance(pieces.ConstGet(1))) {
        AddError(inp_Utils::MessageInKeyword(
            keyword,
            atr("%1$s is not a part instance of the original analysis.", pieces.ConstGet(1))));
        return;
    }
    // The part readers read inside a scope: the instance, for this keyword.
    m_instanceName = pieces.ConstGet(1);
    inpM_SetHandle const set = generate ? GenerateSet(keyword.Data(), internal, false)
                                        : ReadIdsAndSetNames(keyword, internal, false);
    AddPartSet(setName, set, m_newSets, false);
    ClearInstanceName();
}

void inp_RestartSetVisitor::readFlatModelSet(inp_Keyword& keyword, cow_String const& name,
                                             bool generate, bool internal) {
    if (inp_Utils::SplitScopedSet(name).Length() > 1) {
        AddError(inp_Utils::MessageInKeyword(
            keyword,
            atr("The input file for the original analysis does not contain parts and "
                "assemblies.  Upon restart, only assembly level sets may be defined.  The set "
                "name given by the NSET/ELSET parameter should not contain any periods which "
                "imply an assembly of part instances.  The unrecognizable name is: %1$s",
                name)));
        return;
    }
    inpM_SetHandle const set = generate
                                   ? GenerateAssemblySetSpanningInstances(keyword, internal)
                                   : ReadAssemblyIdsAndSetNamesSpanningInstances(keyword, internal);
    AddAssySet(name, set, m_newSets, false);
}

inpM_SetHandle inp_RestartSetVisitor::ReadAssemblyIdsAndSetNamesSpanningInstances(
    inp_Keyword const& keyword, bool internal) {
    inpM_SetHandle set = CreateSet(internal, false);
    IdsByInstance ids;
    cow_List<cow_String> missing;
    inp_DataArray const& data = keyword.Data();
    for (int row = 0; row < data.Rows(); ++row) {
        for (int column = 0; column < data.Cols(row); ++column) {
            if (!data.HasValue(row, column)) continue;
            if (data.Type(row, column) == inp_Types::inp_INTEGER) {
                int const id = data.AsInt(row, column);
                cow_String const owner = FindOwningInstance(m_ids, id);
                if (owner.IsEmpty())
                    missing.Append(data.AsString(row, column));
                else
                    ids.Add(owner, id);
                continue;
            }
            cow_String const item = data.AsString(row, column);
            if (inp_Utils::SplitScopedSet(item).Length() > 1) {
                AddError(inp_Utils::MessageInKeyword(
                    keyword,
                    atr("A period is detected in a data item used to define new node/element "
                        "sets in a restart input file. This is not allowed, since the original "
                        "analysis was not defined in terms of an assembly of part instance. The "
                        "data item in question is: %1$s",
                        item)));
                continue;
            }
            cow_String setName = item;
            cow_String owner = FindOwningInstance(m_oldSets, setName);
            if (owner.IsEmpty()) {
                setName = inpM_Utils::RemoveQuotes(item);
                owner = FindOwningInstance(m_oldSets, setName);
            }
            if (owner.IsEmpty())
                missing.Append(item);
            else
                set.Get().Add(owner, *m_oldSets.ConstGetNestedSet(owner, setName));
        }
    }
    ids.MoveInto(set.Get());
    reportMissing(keyword, missing);
    return set;
}

inpM_SetHandle inp_RestartSetVisitor::GenerateAssemblySetSpanningInstances(
    inp_Keyword const& keyword, bool internal) {
    inpM_SetHandle set = CreateSet(internal, false);
    IdsByInstance ids;
    cow_List<cow_String> missing;
    inp_DataArray const& data = keyword.Data();
    for (int row = 0; row < data.Rows(); ++row) {
        cow_List<int> values;
        bool integers = true;
        for (int column = 0; column < data.Cols(row); ++column) {
            if (!data.HasValue(row, column)) continue;
            integers &= data.Type(row, column) == inp_Types::inp_INTEGER;
            if (integers) values.Append(data.AsInt(row, column));
        }
        if (!integers) {
            AddError(inp_Utils::MessageInKeyword(keyword, atr("The data under must be integers.")));
            continue;
        }
        if (values.Length() < 2) {
            AddError(inp_Utils::MessageInKeyword(keyword,
                                                 atr("Not enough data provided to generate set")));
            continue;
        }
        for (int id : inp_Utils::GenerateUnsortedSetRow(values, SetKeywordName(), m_errors)) {
            cow_String const owner = FindOwningInstance(m_ids, id);
            if (owner.IsEmpty())
                missing.Append(cow_String::FromInt(id));
            else
                ids.Add(owner, id);
        }
    }
    ids.MoveInto(set.Get());
    reportMissing(keyword, missing);
    return set;
}

void inp_RestartSetVisitor::reportMissing(inp_Keyword const& keyword,
                                          cow_List<cow_String> const& missing) {
    if (missing.IsEmpty()) return;
    AddError(
        inp_Utils::MessageInKeyword(keyword, atr("The following sets/IDs do not exist"), missing));
}

cow_String inp_RestartSetVisitor::FindOwningInstance(inpM_IdMap const& ids, int id) const {
    for (cow_String const& key : ids.Instances())
        if (ids.ConstGet(key).IsMember(id)) return instanceOfKey(key);
    return cow_String();
}

cow_String inp_RestartSetVisitor::FindOwningInstance(inpM_SetMap const& sets,
                                                     cow_String const& name) {
    for (cow_String const& instance : sets.Instances())
        if (sets.HasNestedSet(instance, name)) return instance;
    return cow_String();
}

// Known when the instances of the earlier model were given, or when its
// sets have a level for it.
bool inp_RestartSetVisitor::isOriginalInstance(cow_String const& instance) const {
    return m_instancePartNames.IsMember(instance) || m_oldSets.HasInstance(instance);
}

cow_String inp_RestartSetVisitor::instanceOfKey(cow_String const& key) const {
    for (cow_String const& instance : m_instancePartNames.Instances())
        if (m_instancePartNames.ConstGet(instance) == key) return instance;
    return key;
}
