#include "mesh/inp_NodeVisitor.h"

#include "deck/inp_NodeDataArrayImpl.h"
#include "mesh/inp_ElementTypes.h"
#include "mesh/inp_Utils.h"
#include "support/inpM_Set.h"

namespace {

constexpr int kMaxLabelDigits = 9;

// The element set of *NSET, ELSET=... is named in messages as written.
atr_String missingElset(cow_String const& elset) {
    return atr("Element set %s does not exist.", elset);
}

// Appends the nodes of the elements `ids` that `elements` holds; labels
// without a record are passed over. Open positions of a connectivity (0, and
// the empty field of a connector) name no node and are left out.
void appendNodesOfElements(inp_MapInt2Element const& elements, cow_List<int> const& ids,
                           cow_List<int>& nodes) {
    int count = 0;
    for (int id : ids)
        if (inp_Element const* element = elements.GetEltPtr(id))
            count += element->numNodesPerElement();
    nodes.Reserve(count);  // takes effect on an empty list only
    for (int id : ids) {
        inp_Element const* element = elements.GetEltPtr(id);
        if (element == nullptr) continue;
        int const* connectivity = element->nodes();
        for (int k = 0; k < element->numNodesPerElement(); ++k) {
            int const node = connectivity[k];
            if (node != inp_Element::kOpenPosition && node != inp_Element::kEmptyConnectorField)
                nodes.Append(node);
        }
    }
}

// The labels of `ids` that `elements` lacks.
cow_List<int> missingElements(inp_MapInt2Element const& elements, cow_List<int> const& ids) {
    cow_List<int> missing;
    for (int id : ids)
        if (!elements.IsMember(id)) missing.Append(id);
    return missing;
}

// The length of an integer item as written, blanks not counted (a sign
// counts), which is how the compact form measures a label against nine
// characters.
int labelLength(cow_String const& text) {
    int length = 0;
    for (char const* p = text.CStr(); *p; ++p)
        if (*p != ' ' && *p != '\t' && *p != '\r') ++length;
    return length;
}

}  // namespace

// -- construction -------------------------------------------------------------------

inp_NodeVisitor::inp_NodeVisitor(bool readCoordinates)
    : m_elementInfo(inp_ElementTypes::LoadTypeTable()), m_readCoordinates(readCoordinates) {}

inp_NodeVisitor::inp_NodeVisitor(inpM_InstanceMap<inp_MapInt2Element> const& elements,
                                 inpM_SetMap const& elsets, bool readCoordinates)
    : m_elementInfo(inp_ElementTypes::LoadTypeTable()),
      m_elementMap(elements),
      m_elsetMap(elsets),
      m_readCoordinates(readCoordinates) {}

inp_NodeVisitor::inp_NodeVisitor(inpM_InstanceMap<inp_MapInt2Element> const& elements,
                                 inpM_SetMap const& elsets, inpM_SetMap const& nsets,
                                 bool readCoordinates)
    : inp_NodeVisitor(elements, elsets, readCoordinates) {
    m_setMap = nsets;
    m_searchAssembly = !nsets.IsEmpty();
}

inp_NodeVisitor::~inp_NodeVisitor() = default;

void inp_NodeVisitor::DefaultAction(inp_Keyword&) {}

// *NGEN and *NFILL live in inp_NodeGeneration.cpp, *NCOPY in
// inp_NodeCopy.cpp, *NMAP in inp_NodeMap.cpp.

cow_String inp_NodeVisitor::KeywordName() const {
    return "*NODE";
}

bool inp_NodeVisitor::IsValidInstanceName(cow_String const& name) const {
    return name == CurrentName();
}

// -- *NODE --------------------------------------------------------------------------------

inp_CoordMap* inp_NodeVisitor::targetMap(inp_Keyword const&) {
    cow_String const& scope = CurrentName();
    if (scope.IsEmpty()) return &m_coordMap;
    if (!m_coordMap.IsMember(scope)) return nullptr;
    return &m_coordMap.Get(scope);
}

void inp_NodeVisitor::storeNode(inp_CoordMap& target, int label, inp_Coord& record,
                                char system) const {
    if (system == 'C')
        record.Cylindrical2Rectangular();
    else if (system == 'S')
        record.Spherical2Rectangular();
    // A record without a normal leaves NormalizePlusRotate with a zero normal
    // anyway: the call is spared for the common case.
    if (record.HasNormal()) record.NormalizePlusRotate(m_systemTransform);
    if (!m_systemTransform.IsIdentity()) {
        gsl_Point point = record.Point();
        m_systemTransform.Transform(point);
        record.SetPoint(point);
        record.ZeroSmallerThanTolerance();
    }
    target.Insert(label, record);
}

// The compact form has checked every label and coordinate when it was built:
// a row with label 0 is a blank line of the block and is passed over.
void inp_NodeVisitor::readCompactNodes(inp_Keyword const& keyword, char system,
                                       inp_CoordMap* target, cow_List<int>& labels) {
    auto const& data = static_cast<inp_NodeDataArrayImpl const&>(*keyword.Data().Impl());
    int const rows = data.Rows();
    bool const wantLabels = keyword.HasParameter("nset");
    if (wantLabels) labels.Reserve(rows);
    atr_String const unknownScope =
        target ? atr_String()
               : atr("Unknown instance or part name %s is encountered while processing the *NODE "
                     "keyword.",
                     CurrentName());
    inp_Coord record;
    for (int i = 0; i < rows; ++i) {
        // Qualified calls: no dispatch through the base, and the class is
        // known to hold every row with all seven columns.
        int const label = data.inp_NodeDataArrayImpl::AsInt(i, 0);
        if (label < 1) continue;
        if (wantLabels) labels.Append(label);
        if (target == nullptr) {
            AddError(inp_Utils::MessageInKeyword(keyword, unknownScope));
            continue;
        }
        record = inp_Coord();
        if (m_readCoordinates) {
            record.x = data.inp_NodeDataArrayImpl::AsDouble(i, 1);
            record.y = data.inp_NodeDataArrayImpl::AsDouble(i, 2);
            record.z = data.inp_NodeDataArrayImpl::AsDouble(i, 3);
            record.nx = data.inp_NodeDataArrayImpl::AsDouble(i, 4);
            record.ny = data.inp_NodeDataArrayImpl::AsDouble(i, 5);
            record.nz = data.inp_NodeDataArrayImpl::AsDouble(i, 6);
        }
        storeNode(*target, label, record, system);
    }
}

// Raw text is what expansion leaves when its bulk conversion is turned off,
// and what a caller that skips expansion hands in. Nobody has checked it, so
// the faults the compact form would have raised are reported here, with the
// same texts, one row at a time; the row is passed over and the others are
// stored. A node with a coordinate that is no number is not stored either,
// and all such nodes of the keyword are named in one message.
void inp_NodeVisitor::readRawNodes(inp_Keyword const& keyword, char system, inp_CoordMap* target,
                                   cow_List<int>& labels) {
    inp_DataArray const& data = keyword.Data();
    int const rows = data.Rows();
    bool const wantLabels = keyword.HasParameter("nset");
    cow_String badNodes;
    for (int i = 0; i < rows; ++i) {
        int const columns = data.Cols(i);
        if (columns == 0) continue;
        inp_Types::typeEnm const type = data.Type(i, 0);
        if (type == inp_Types::inp_NONE && columns == 1) continue;  // a blank line
        if (type != inp_Types::inp_INTEGER) {
            AddError(inp_Utils::MessageInKeyword(
                keyword, atr("Node label is not an integer: %s", data.AsString(i, 0))));
            continue;
        }
        if (labelLength(data.AsStringVerbatim(i, 0)) > kMaxLabelDigits) {
            AddError(inp_Utils::MessageInKeyword(
                keyword, atr("Node label exceeds 9 digits: %s", data.AsString(i, 0))));
            continue;
        }
        int const label = data.AsInt(i, 0);
        if (label < 1) {
            AddError(inp_Utils::MessageInKeyword(
                keyword, atr("Node label is not a positive integer: %s", data.AsString(i, 0))));
            continue;
        }
        double values[6] = {0.0, 0.0, 0.0, 0.0, 0.0, 0.0};
        bool bad = false;
        if (m_readCoordinates) {
            int const used = columns < 7 ? columns : 7;
            for (int j = 1; j < used; ++j) {
                inp_Types::typeEnm const t = data.Type(i, j);
                if (t == inp_Types::inp_NONE) continue;
                if (t != inp_Types::inp_REAL && t != inp_Types::inp_INTEGER) {
                    bad = true;
                    continue;
                }
                values[j - 1] = data.AsDouble(i, j);
            }
        }
        if (bad) {
            badNodes.append(' ');
            badNodes.append(cow_String::FromInt(label));
            continue;
        }
        if (wantLabels) labels.Append(label);
        if (target == nullptr) {
            AddError(inp_Utils::MessageInKeyword(
                keyword, atr("Unknown instance or part name %s is encountered while processing "
                             "the *NODE keyword.",
                             CurrentName())));
            continue;
        }
        inp_Coord record(values[0], values[1], values[2], values[3], values[4], values[5]);
        storeNode(*target, label, record, system);
    }
    if (!badNodes.IsEmpty())
        AddError(inp_Utils::MessageInKeyword(
            keyword,
            atr("Invalid nodal coordinate values were specified for the following nodes:%s",
                badNodes)));
}

void inp_NodeVisitor::VisitNode(inp_Keyword& keyword) {
    cow_String const system = keyword.GetParameterAsString("system", "R");
    char const letter = system.IsEmpty() ? 'R' : system[0];
    // The target is found once for the keyword. A scope without a map gives
    // the error for every row, since every row is refused in turn.
    inp_CoordMap* const target = targetMap(keyword);
    cow_List<int> labels;
    if (dynamic_cast<inp_NodeDataArrayImpl const*>(keyword.Data().Impl()) != nullptr)
        readCompactNodes(keyword, letter, target, labels);
    else
        readRawNodes(keyword, letter, target, labels);

    if (labels.IsEmpty()) return;
    cow_String const name = keyword.GetParameterAsString("nset", "");
    if (name.IsEmpty()) return;
    addLabelSet(name, labels);
}

void inp_NodeVisitor::addLabelSet(cow_String const& name, cow_List<int> const& labels) {
    inpM_SetHandle const set = CreateSet(labels, false, false);
    if (CurrentName().IsEmpty())
        AddAssySet(name, set, false);
    else
        AddPartSet(name, set, false);
}

// -- *SYSTEM ------------------------------------------------------------------------------

void inp_NodeVisitor::VisitSystem(inp_Keyword& keyword) {
    inp_DataArray const& data = keyword.Data();
    m_systemTransform.FillIdentity();
    if (data.Rows() == 0) return;

    gsl_Point const a = ReadPointFromKeywordData(keyword, 0, 0);
    gsl_Point const b = ReadPointFromKeywordData(keyword, 0, 3);
    bool const twoLines = data.Rows() >= 2;
    if (!twoLines && b == gsl_Point()) {
        m_systemTransform.SetTranslation(a);
        return;
    }
    // A failed axis is reported and the steps go on with what is there: the
    // system is then degenerate, as the user gave it.
    gsl_Vector x = b - a;
    if (!x.Normalize())
        AddError(inp_Utils::MessageInKeyword(
            keyword, atr("The x-axis of the local coordinate system is not defined.")));
    gsl_Vector y;
    gsl_Vector z;
    if (!twoLines) {
        z = gsl_Vector(0.0, 0.0, 1.0);
        y = z.CrossProduct(x);
        if (!y.Normalize())
            AddError(inp_Utils::MessageInKeyword(
                keyword, atr("The x-axis and the z-axis of the local coordinate system are "
                             "parallel or almost parallel.")));
        x = y.CrossProduct(z);
    } else {
        gsl_Point const c = ReadPointFromKeywordData(keyword, 1, 0);
        y = c - a;
        if (!y.Normalize())
            AddError(inp_Utils::MessageInKeyword(
                keyword, atr("The y-axis of the local coordinate system is not defined.")));
        z = x.CrossProduct(y);
        if (!z.Normalize())
            AddError(inp_Utils::MessageInKeyword(
                keyword, atr("The x-axis and the y-axis of the local coordinate system are "
                             "parallel or almost parallel.")));
        y = z.CrossProduct(x);
    }
    m_systemTransform.SetTranslation(a);
    m_systemTransform.SetRotationVectors(x, y, z);
}

// -- *NSET --------------------------------------------------------------------------------

void inp_NodeVisitor::VisitNset(inp_Keyword& keyword) {
    bool const hasElset = keyword.HasParameter("elset");
    bool const generate = keyword.HasParameter("generate");
    if (generate && hasElset) {
        AddError(inp_Utils::MessageInKeyword(
            keyword, atr("The ELSET and GENERATE parameters are mutually exclusive. ")));
        return;
    }
    cow_String const name = keyword.GetParameterAsString("nset", "");
    if (!keyword.HasParameter("nset") || name.IsEmpty()) {
        AddError(inp_Utils::MessageInKeyword(keyword, atr("NSET parameter is required.")));
        return;
    }
    ProcessInstanceParameter(keyword);
    bool const internal = keyword.HasParameter("internal");
    bool unsorted = keyword.HasParameter("unsorted");
    bool const inScope = !CurrentName().IsEmpty();

    if (!hasElset) {
        inpM_SetHandle set;
        if (inScope) {
            set = generate ? GenerateSetAccumulate(name, keyword.Data(), internal, unsorted)
                           : ReadIdsAndSetNamesAccumulate(name, keyword, internal, unsorted,
                                                          m_searchAssembly);
            AddPartSet(name, set, true);
        } else {
            set = generate ? GenerateAssemblySetAccumulate(name, keyword, internal, unsorted)
                           : ReadAssemblyIdsAndSetNamesAccumulate(name, m_setMap, keyword, internal,
                                                                  unsorted);
            AddAssySet(name, set, true);
        }
        return;
    }

    // The nodes of elements come in element order with repeats, which only a
    // sorted set makes sense of: UNSORTED is reported and then disregarded,
    // and the set is still built.
    if (unsorted) {
        AddError(inp_Utils::MessageInKeyword(
            keyword, atr("The UNSORTED parameter cannot be used with the ELSET parameter. ")));
        unsorted = false;
    }
    cow_String const elset = keyword.GetParameterAsString("elset", "");
    if (inScope)
        nodesOfElsetInScope(keyword, name, elset, internal);
    else
        nodesOfElsetAtAssembly(keyword, name, elset, internal);
}

// Inside a part or instance the element set is a set of the scope (its last
// piece when written scoped) and its elements those of the scope.
void inp_NodeVisitor::nodesOfElsetInScope(inp_Keyword const& keyword, cow_String const& nset,
                                          cow_String const& elset, bool internal) {
    cow_List<cow_String> const pieces = inp_Utils::SplitScopedSet(elset);
    cow_String const& setName = pieces.Last();
    cow_String const& scope = CurrentName();
    if (!m_elsetMap.HasNestedSet(scope, setName)) {
        AddError(inp_Utils::MessageInKeyword(keyword, missingElset(elset)));
        return;
    }
    cow_List<int> nodes;
    if (m_elementMap.IsMember(scope) && m_elementMap.ConstGetMap(scope).HasValue())
        appendNodesOfElements(m_elementMap.ConstGet(scope),
                              m_elsetMap.ConstGetNestedSet(scope, setName)->ConstGetIdList(),
                              nodes);
    inpM_SetHandle set = CreateSet(internal, false);
    set.Get().ReserveAdditional(nodes.Length());
    set.Get().Add(nodes);
    AddPartSet(nset, set, false);
}

// At the assembly level: instance.set takes the nodes of that instance's
// elements into the set under the instance; a plain name takes an assembly
// set, whose own elements must all be assembly elements and whose elements
// by instance must all be elements of those instances. Such a set is stored
// only when every element was found. Both are stored in the merging mode, as
// in a part.
void inp_NodeVisitor::nodesOfElsetAtAssembly(inp_Keyword const& keyword, cow_String const& nset,
                                             cow_String const& elset, bool internal) {
    cow_List<cow_String> const pieces = inp_Utils::SplitScopedSet(elset);
    inpM_SetHandle set = CreateSet(internal, false);
    if (pieces.Length() >= 2) {
        cow_String const& instance = pieces[0];
        cow_String const& setName = pieces.Last();
        if (!m_elsetMap.HasNestedSet(instance, setName)) {
            AddError(inp_Utils::MessageInKeyword(keyword, missingElset(elset)));
            return;
        }
        cow_List<int> nodes;
        if (m_elementMap.IsMember(instance) && m_elementMap.ConstGetMap(instance).HasValue())
            appendNodesOfElements(m_elementMap.ConstGet(instance),
                                  m_elsetMap.ConstGetNestedSet(instance, setName)->ConstGetIdList(),
                                  nodes);
        set.Get().Add(instance, nodes);
        AddAssySet(nset, set, false);
        return;
    }

    if (!m_elsetMap.HasSet(elset)) {
        AddError(inp_Utils::MessageInKeyword(keyword, missingElset(elset)));
        return;
    }
    inpM_BaseSet const& elements = *m_elsetMap.ConstGetSet(elset);
    cow_List<int> const own = elements.ConstGetAssemblyIdList();
    if (!own.IsEmpty()) {
        inp_MapInt2Element const empty;
        inp_MapInt2Element const& assembly =
            m_elementMap.HasValue() ? m_elementMap.ConstGet() : empty;
        cow_List<int> const missing = missingElements(assembly, own);
        if (!missing.IsEmpty()) {
            AddError(inp_Utils::MessageInKeyword(
                keyword,
                atr("The following elements from elset %s are not found at assembly level", elset),
                missing));
            return;
        }
        cow_List<int> nodes;
        appendNodesOfElements(assembly, own, nodes);
        set.Get().Add(nodes);
    }
    bool complete = true;
    elements.ConstGetInstanceIdLists().ForEachSorted([&](cow_String const& instance,
                                                         cow_List<int> const& ids) {
        if (!m_elementMap.IsMember(instance) || !m_elementMap.ConstGetMap(instance).HasValue()) {
            AddError(inp_Utils::MessageInKeyword(
                keyword,
                atr("Part instance %s in elset %s items has not been found.", instance, elset)));
            complete = false;
            return;
        }
        inp_MapInt2Element const& table = m_elementMap.ConstGet(instance);
        cow_List<int> const missing = missingElements(table, ids);
        if (!missing.IsEmpty()) {
            AddError(inp_Utils::MessageInKeyword(
                keyword,
                atr("The following elements from elset %s are not found at part instance %s", elset,
                    instance),
                missing));
            complete = false;
            return;
        }
        cow_List<int> nodes;
        appendNodesOfElements(table, ids, nodes);
        set.Get().Add(instance, nodes);
    });
    if (complete) AddAssySet(nset, set, false);
}

// -- supporting operations -----------------------------------------------------------

inp_Coord inp_NodeVisitor::ApplyInstanceTransform(inp_Coord const& record) const {
    inp_Coord result = record;
    if (m_instanceTransform.IsIdentity()) return result;
    gsl_Point point = result.Point();
    m_instanceTransform.Transform(point);
    result.SetPoint(point);
    return result;
}

inp_Coord inp_NodeVisitor::UndoInstanceTransform(inp_Coord const& record) const {
    inp_Coord result = record;
    if (m_instanceTransform.IsIdentity()) return result;
    gsl_Matrix inverse;
    m_instanceTransform.InverseRigidTransform(inverse);
    gsl_Point point = result.Point();
    inverse.Transform(point);
    result.SetPoint(point);
    return result;
}

double inp_NodeVisitor::NumberAt(inp_DataArray const& data, int row, int col) {
    if (!data.HasValue(row, col)) return 0.0;  // also false outside the data
    inp_Types::typeEnm const type = data.Type(row, col);
    if (type != inp_Types::inp_REAL && type != inp_Types::inp_INTEGER) return 0.0;
    return data.AsDouble(row, col);
}

int inp_NodeVisitor::IntegerAt(inp_DataArray const& data, int row, int col) {
    if (!data.HasValue(row, col)) return 0;
    if (data.Type(row, col) != inp_Types::inp_INTEGER) return 0;
    return data.AsInt(row, col);
}

gsl_Point inp_NodeVisitor::ReadPointFromKeywordData(inp_Keyword const& keyword, int row, int col) {
    inp_DataArray const& data = keyword.Data();
    return {NumberAt(data, row, col), NumberAt(data, row, col + 1), NumberAt(data, row, col + 2)};
}

gsl_Point inp_NodeVisitor::ReadNodeFromKeywordData(inp_Keyword const& keyword,
                                                   cow_String const& scope, int row,
                                                   int col) const {
    int const label = IntegerAt(keyword.Data(), row, col);
    inp_CoordMap const* map = &m_coordMap;
    if (!scope.IsEmpty()) {
        if (!m_coordMap.IsMember(scope)) return {};
        map = &m_coordMap.ConstGet(scope);
    }
    if (!map->IsMember(label)) return {};
    return map->ConstGet(label).Point();
}

gsl_Vector inp_NodeVisitor::ReflectVectorAboutLine(gsl_Vector const& v, gsl_StLine const& line) {
    gsl_Vector d = line.Direction();
    d.Normalize();
    gsl_Vector const p = d * v.DotProduct(d);
    return p - (v - p);
}

gsl_Vector inp_NodeVisitor::ReflectVectorAboutPlane(gsl_Vector const& v, gsl_Plane const& plane) {
    gsl_Vector n = plane.Direction();
    n.Normalize();
    gsl_Vector const p = n * v.DotProduct(n);
    return (v - p) - p;
}

void inp_NodeVisitor::MatrixVectorMultiply3x3(double (*matrix)[3], double* vector, double* result) {
    for (int i = 0; i < 3; ++i)
        result[i] = matrix[i][0] * vector[0] + matrix[i][1] * vector[1] + matrix[i][2] * vector[2];
}

bool inp_NodeVisitor::CheckExistenceOfOldSet(cow_String const& name, cow_String& scope) const {
    return CheckExistenceOfSet(name, scope, m_setMap, m_searchAssembly);
}
