#include "mesh/inp_ElementVisitor.h"
#include "mesh/inp_Utils.h"
#include "support/inpM_Set.h"

// The keywords that make element sets or tell the element reader about types:
// *USER ELEMENT, *ELSET, the ELSET of *FASTENER and the sets of *PARTICLE
// GENERATOR MIXTURE.

namespace {

// The node count of a user element type read from a file: not known here.
constexpr int kUnknownNodeCount = -1;

// The TYPE of a keyword in upper case, as *ELEMENT looks it up; empty when
// there is none.
cow_String upperTypeOf(inp_Keyword const& keyword) {
    inp_Item const* const item = keyword.Parameters().Find("type");
    if (!item || item->Type() == inp_Types::inp_NONE) return cow_String();
    cow_String type = item->AsString();
    type.ToUpper();
    return type;
}

}  // namespace

// -- *USER ELEMENT ----------------------------------------------------------------------

// The first definition of a type stands; a later one is not read.
void inp_ElementVisitor::VisitUserElement(inp_Keyword& keyword) {
    cow_String const type = upperTypeOf(keyword);
    if (keyword.HasParameter("file")) {
        if (!type.IsEmpty() && !m_userElementNodes.IsMember(type))
            m_userElementNodes.Insert(type, kUnknownNodeCount);
        return;
    }
    if (!keyword.HasParameter("nodes")) {
        AddError(inp_Utils::MessageInKeyword(keyword, atr("The NODES parameter is required.")));
        return;
    }
    if (!keyword.HasParameter("type")) {
        AddError(inp_Utils::MessageInKeyword(keyword, atr("The TYPE parameter is required.")));
        return;
    }
    int nodes = keyword.GetParameterAsInt("nodes", 0);
    // The type is entered all the same. A negative count is refused like 0
    // and entered as 0, so that it is never taken for the unknown count.
    if (nodes <= 0) {
        AddError(inp_Utils::MessageInKeyword(
            keyword, atr("The number of nodes on a user element must be greater than zero.")));
        nodes = 0;
    }
    if (!m_userElementNodes.IsMember(type)) m_userElementNodes.Insert(type, nodes);
}

// -- *ELSET --------------------------------------------------------------------------------

// Both levels store in the merging mode: a second *ELSET of a name adds to
// the first.
void inp_ElementVisitor::VisitElset(inp_Keyword& keyword) {
    cow_String const name = keyword.GetParameterAsString("elset", cow_String());
    if (name.IsEmpty()) {
        AddError(inp_Utils::MessageInKeyword(keyword, atr("ELSET parameter is required.")));
        return;
    }
    ProcessInstanceParameter(keyword);
    bool const internal = keyword.HasParameter("internal");
    bool const unsorted = keyword.HasParameter("unsorted");
    bool const generate = keyword.HasParameter("generate");
    if (CurrentName().IsEmpty()) {
        inpM_SetHandle const set =
            generate ? GenerateAssemblySet(keyword, internal, unsorted)
                     : ReadAssyElsetIdsAndSetNames(m_setMap, keyword, internal, unsorted);
        AddAssySet(name, set, false);
        return;
    }
    // Inside a part UNSORTED takes the unsorted reader, so that the ids keep
    // the order written, as at the assembly level and in GENERATE.
    inpM_SetHandle set;
    if (generate)
        set = GenerateSet(keyword.Data(), internal, unsorted);
    else if (unsorted)
        set = ReadUnsortedIdsAndSetNames(keyword, internal, m_searchAssembly);
    else
        set = ReadIdsAndSetNames(keyword, internal, m_searchAssembly);
    AddPartSet(name, set, false);
}

// The keyword is kept in UnresolvedElsets() as it was read. This visitor
// does not read it again: the second reading, once every instance is known,
// belongs to the assembly stage that runs later and takes the list from
// here.
inpM_SetHandle inp_ElementVisitor::ReadAssyElsetIdsAndSetNames(inpM_SetMap const& sets,
                                                               inp_Keyword const& keyword,
                                                               bool internal, bool unsorted) {
    cow_List<atr_String> const saved = m_errors;
    inpM_SetHandle set = unsorted ? ReadUnsortedAssemblyIdsAndSetNames(sets, keyword, internal)
                                  : ReadAssemblyIdsAndSetNames(sets, keyword, internal);
    if (m_errors.Length() > saved.Length()) {
        m_unresolvedElsets.Append(keyword);
        m_errors = saved;
    }
    return set;
}

// -- *FASTENER -------------------------------------------------------------------------

// The ELSET of a fastener names the set of the elements that the solver
// makes for it: here it only has to exist, empty. One that exists already
// is left as it is.
void inp_ElementVisitor::VisitFastener(inp_Keyword& keyword) {
    cow_String const name = keyword.GetParameterAsString("elset", cow_String());
    if (name.IsEmpty()) return;
    if (CurrentName().IsEmpty())
        addFastenerSetAtAssembly(keyword, name);
    else
        AddPartSet(name, CreateSet(false, false), false);
}

void inp_ElementVisitor::addFastenerSetAtAssembly(inp_Keyword const& keyword,
                                                  cow_String const& name) {
    cow_List<cow_String> const pieces = inp_Utils::SplitScopedSet(name);
    if (pieces.Length() == 1) {
        AddAssySet(name, CreateSet(false, false), false);
        return;
    }
    cow_String const& instance = pieces[0];
    cow_String const& set = pieces.Last();
    if (!IsValidInstanceName(instance)) {
        AddError(inp_Utils::MessageInKeyword(keyword, atr("Unknown instance %s.", instance)));
        return;
    }
    if (!m_setMap.HasNestedSet(instance, set))
        m_setMap.InsertNestedSet(instance, set, CreateSet(false, false));
}

// -- *PARTICLE GENERATOR MIXTURE ----------------------------------------------------------

// Each name of the data is a set of the scope that the solver fills with
// particles: it is made here, empty, and must not exist before. Both lists
// end in a colon, so the items follow on their own line (MessageWithItems);
// numbers are listed as written, each once.
void inp_ElementVisitor::VisitParticleGeneratorMixture(inp_Keyword& keyword) {
    cow_String const& scope = CurrentName();
    if (scope.IsEmpty()) return;
    inp_DataArray const& data = keyword.Data();
    cow_List<cow_String> existing;
    cow_List<cow_String> disregarded;
    for (int i = 0; i < data.Rows(); ++i) {
        for (int j = 0; j < data.Cols(i); ++j) {
            inp_Types::typeEnm const type = data.Type(i, j);
            if (type == inp_Types::inp_NONE) continue;
            if (type != inp_Types::inp_STRING) {
                disregarded.Append(data.AsStringVerbatim(i, j));
                continue;
            }
            cow_String const name = data.AsString(i, j);
            if (m_setMap.HasNestedSet(scope, name))
                existing.Append(name);
            else
                AddPartSet(name, CreateSet(false, false), false);
        }
    }
    if (!existing.IsEmpty())
        AddError(inp_Utils::MessageInKeyword(
            keyword, inp_Utils::MessageWithItems("The following sets already exist:", existing)));
    if (!disregarded.IsEmpty())
        AddError(inp_Utils::MessageInKeyword(
            keyword, inp_Utils::MessageWithItems("The following labels have been disregarded:",
                                                 disregarded)));
}
