#include "mesh/inp_SurfaceVisitor.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>

#include "deck/inp_RawDataArrayImpl.h"
#include "mesh/inp_Utils.h"
#include "support/ZELBasAssert.h"
#include "support/inpM_Utils.h"

namespace {

char const kMissingSets[] = "The following sets were not found when generating the surface %s:";
char const kMissingCombined[] =
    "The following surfaces were not found when generating the combined surface %s:";
// A CROP whose source surface does not exist would otherwise leave an empty
// surface without a word.
char const kMissingCropSources[] =
    "The following surfaces were not found when generating the cropped surface %s:";

// -- item text without a string object per item ----------------------------------------
// *SURFACE data is kept as raw text, which is read in place here: rows of
// labels and face identifiers then cost no allocation, and a name costs one.

bool isBlank(char c) {
    return c == ' ' || c == '\t';
}

// The item as written, blanks around it trimmed; a data form other than raw
// text goes through a string kept in `scratch`.
std::string_view verbatimItem(inp_DataArray const& data, int row, int col, cow_String& scratch) {
    auto const* raw = dynamic_cast<inp_RawDataArrayImpl const*>(data.Impl());
    if (raw == nullptr) {
        scratch = data.AsStringVerbatim(row, col);
        return scratch.View();
    }
    std::string_view text = raw->Item(row, col);
    while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
    return text;
}

// Whether folding the text like an item (blanks out and upper case, outside
// quotes) does no more than upper-case it.
bool foldsByUpperCase(std::string_view text) {
    return text.find_first_of("\" \t\r\n") == std::string_view::npos;
}

char upperCase(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

bool equalsUpperCased(std::string_view text, cow_String const& folded) {
    if (static_cast<int>(text.size()) != folded.Length()) return false;
    for (size_t i = 0; i < text.size(); ++i)
        if (upperCase(text[i]) != folded.CStr()[i]) return false;
    return true;
}

// `text` folded, which must fold by upper case alone: `previous` itself
// when it is that already.
cow_String upperCasedUnlessEqual(std::string_view text, cow_String const& previous) {
    if (equalsUpperCased(text, previous)) return previous;
    cow_String folded(text);
    folded.ToUpper();
    return folded;
}

// The item folded like every item (inp_DataArray::AsString), in one
// allocation at most, and none when it equals `previous`.
cow_String foldedItem(inp_DataArray const& data, int row, int col, cow_String const& previous) {
    cow_String scratch;
    std::string_view const text = verbatimItem(data, row, col, scratch);
    if (!foldsByUpperCase(text)) return data.AsString(row, col);
    return upperCasedUnlessEqual(text, previous);
}

bool allDigits(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

// -- keyword parameters ------------------------------------------------------------------

cow_String parameterText(inp_Keyword const& keyword, char const* name) {
    inp_Item const* item = keyword.Parameters().Find(name);
    return item == nullptr || item->Type() == inp_Types::inp_NONE ? cow_String() : item->AsString();
}

// The kind of surface the keyword asks for: any TYPE but these counts as
// "ELEMENT".
cow_String surfaceKind(inp_Keyword const& keyword) {
    cow_String type = keyword.GetParameterAsString("type", "ELEMENT");
    if (type == "NODE" || type == "EULERIANMATERIAL" || type == "XFEM" ||
        inp_Utils::IsAnalyticalSurfaceType(type))
        return type;
    return "ELEMENT";
}

inpM_SurfaceTypes surfaceType(bool node) {
    return node ? inpM_NodeAreaSurfaceType : inpM_ElementFaceIdSurfaceType;
}

// The data rows a surface is read from: a cutting surface keeps its cutting
// data in row 0, and a cropped surface names its source in row 0 and its box
// in the rows after. A cropped cutting surface thus reads no row.
struct RowRange {
    explicit RowRange(inp_Keyword const& keyword)
        : first(keyword.GetParameterAsString("type", "") == "CUTTINGSURFACE" ? 1 : 0),
          end(keyword.HasParameter("crop") ? std::min(keyword.Data().Rows(), 1)
                                           : keyword.Data().Rows()) {}
    int first;
    int end;
};

// How the values after the first of a combining row act on the result. Any
// other COMBINE value (the keyword checks allow none) reads as UNION.
enum class CombineRule { kUnion, kIntersection, kDifference };

CombineRule combineRule(inp_Keyword const& keyword) {
    cow_String const rule = keyword.GetParameterAsString("combine", "UNION");
    if (rule == "INTERSECTION") return CombineRule::kIntersection;
    if (rule == "DIFFERENCE") return CombineRule::kDifference;
    return CombineRule::kUnion;
}

template <class Target, class... Member>
void combineInto(Target& target, CombineRule rule, bool firstOfRow, Member const&... member) {
    if (firstOfRow || rule == CombineRule::kUnion)
        target.Add(member...);
    else if (rule == CombineRule::kIntersection)
        target.Intersection(member...);
    else
        target.Difference(member...);
}

// Calls take(name, firstOfRow) for every value of the rows; take answers
// whether it found the surface. A missing name is dropped as if it were not
// written: the first surface found in a row is the one that is added.
template <class Take>
void forEachMemberName(inp_Keyword const& keyword, Take take) {
    inp_DataArray const& data = keyword.Data();
    RowRange const rows(keyword);
    for (int i = rows.first; i < rows.end; ++i) {
        bool firstOfRow = true;
        for (int j = 0; j < data.Cols(i); ++j) {
            if (data.IsNone(i, j)) continue;
            if (take(data.AsString(i, j), firstOfRow)) firstOfRow = false;
        }
    }
}

}  // namespace

// -- GetAreaOrFaceId --------------------------------------------------------------------

// An area written as an integer is an area all the same: 2 means 2.0.
void GetAreaOrFaceId(bool isNode, double& area, cow_String& faceId, inp_DataArray const& data,
                     int row, int col) {
    if (!isNode) {
        faceId = foldedItem(data, row, col, faceId);
        return;
    }
    inp_Types::typeEnm const type = data.Type(row, col);
    area = type == inp_Types::inp_REAL || type == inp_Types::inp_INTEGER ? data.AsDouble(row, col)
                                                                         : 1.0;
}

// -- RowReader ----------------------------------------------------------------------------

// Reads the data rows of one *SURFACE keyword into a surface: which rows
// count, the second value of each, and the members. Labels of consecutive
// rows that go to the same place with the same area or face are gathered and
// added as one piece; anything else that is added first adds the labels
// gathered so far, so the members go in in the order written, which decides
// the area of a node given twice and the order of element ids.
class inp_SurfaceVisitor::RowReader {
  public:
    // Into the surface of a scope, or into an assembly surface.
    RowReader(inp_Keyword& keyword, bool node, inpM_PartInstanceSurfaceHandle* part,
              inpM_AssemblyInstanceSurface* assembly)
        : m_keyword(keyword),
          m_node(node),
          m_crop(keyword.HasParameter("crop")),
          m_rows(keyword),
          m_part(part),
          m_assembly(assembly) {}

    inp_Keyword& Keyword() const { return m_keyword; }
    inp_DataArray const& Data() const { return m_keyword.Data(); }
    bool IsCrop() const { return m_crop; }
    int First() const { return m_rows.first; }
    int End() const { return m_rows.end; }

    // Makes row i the current one and reads its second value; without one
    // (or with CROP, whose rows carry none) the area is 1.0 and the face
    // identifier empty. False for a row without a first value: it names
    // nothing and is passed over.
    bool StartRow(int i) {
        inp_DataArray const& data = Data();
        int const cols = data.Cols(i);
        if (cols < 1 || data.IsNone(i, 0)) return false;
        m_row = i;
        if (cols >= 2 && !m_crop) {
            GetAreaOrFaceId(m_node, m_area, m_faceId, data, i, 1);
        } else {
            m_area = 1.0;
            m_faceId = cow_String();
        }
        return true;
    }
    inp_Types::typeEnm FirstType() const { return Data().Type(m_row, 0); }
    cow_String FirstText() const { return foldedItem(Data(), m_row, 0, cow_String()); }
    // atoi of the first value's text, whose type the caller has asked.
    int FirstLabel(inp_Types::typeEnm firstType) const {
        if (firstType == inp_Types::inp_INTEGER) return Data().AsInt(m_row, 0);
        cow_String scratch;
        return std::atoi(cow_String(verbatimItem(Data(), m_row, 0, scratch)).CStr());
    }
    // A first value that is an integer written with its digits alone, the
    // form IsId takes for a label.
    bool FirstIsPlainLabel(int& label) const {
        if (FirstType() != inp_Types::inp_INTEGER) return false;
        cow_String scratch;
        std::string_view const text = verbatimItem(Data(), m_row, 0, scratch);
        if (text.empty() || !allDigits(text.substr(0, 1))) return false;
        label = Data().AsInt(m_row, 0);
        return true;
    }
    // A first value "instance.label" written plainly (no quotes, blanks or
    // further periods), read without taking it apart into strings: rows of
    // scoped labels of one instance share one instance name. Any other form
    // is left to SplitScopedSet.
    bool FirstIsPlainScopedId(cow_String& instance, int& label) {
        cow_String scratch;
        std::string_view const text = verbatimItem(Data(), m_row, 0, scratch);
        size_t const period = text.find('.');
        if (period == 0 || period == std::string_view::npos || !foldsByUpperCase(text))
            return false;
        std::string_view const digits = text.substr(period + 1);
        if (digits.empty() || digits.size() > 9 || !allDigits(digits)) return false;
        m_lastInstance = upperCasedUnlessEqual(text.substr(0, period), m_lastInstance);
        instance = m_lastInstance;
        label = 0;
        for (char digit : digits) label = label * 10 + (digit - '0');
        return true;
    }

    // The ids with the current row's area or face identifier, under the
    // instance: empty for the scope, or at the assembly level for the
    // assembly's own nodes.
    void AddIds(cow_String const& instance, cow_List<int> const& ids) {
        FlushLabels();
        addIds(instance, ids, m_area, m_faceId);
    }
    void TakeLabel(cow_String const& instance, int label) {
        bool const sameRun = !m_run.IsEmpty() && instance == m_runInstance && m_area == m_runArea &&
                             m_faceId == m_runFaceId;
        if (!sameRun) {
            FlushLabels();
            m_runInstance = instance;
            m_runArea = m_area;
            m_runFaceId = m_faceId;
        }
        m_run.Append(label);
    }
    void FlushLabels() {
        if (m_run.IsEmpty()) return;
        cow_List<int> const labels = m_run;
        m_run = cow_List<int>();
        addIds(m_runInstance, labels, m_runArea, m_runFaceId);
    }

    cow_List<cow_String>& MissingSets() { return m_missingSets; }
    cow_List<cow_String>& MissingSurfaces() { return m_missingSurfaces; }

  private:
    // A piece of the ids, which the surface takes by Add.
    void addIds(cow_String const& instance, cow_List<int> const& ids, double area,
                cow_String const& faceId) {
        if (m_node)
            addPiece(instance, inpM_NodeAreaSurface(area, ids));
        else
            addPiece(instance, inpM_ElementFaceIdSurface(faceId, ids));
    }
    void addPiece(cow_String const& instance, inpM_PartInstanceSurface const& piece) {
        if (m_part != nullptr) {
            m_part->Get().Add(piece);
        } else if (!instance.IsEmpty()) {
            m_assembly->Add(instance, piece);
        } else if (piece.Type() == inpM_NodeAreaSurfaceType) {
            m_assembly->Add(static_cast<inpM_NodeAreaSurface const&>(piece));
        }
    }

    inp_Keyword& m_keyword;
    bool m_node;
    bool m_crop;
    RowRange m_rows;
    int m_row = 0;
    double m_area = 1.0;
    cow_String m_faceId;
    cow_String m_lastInstance;
    // The labels gathered, and where they go.
    cow_List<int> m_run;
    cow_String m_runInstance;
    double m_runArea = 1.0;
    cow_String m_runFaceId;
    inpM_PartInstanceSurfaceHandle* m_part;
    inpM_AssemblyInstanceSurface* m_assembly;
    cow_List<cow_String> m_missingSets;
    cow_List<cow_String> m_missingSurfaces;
};

// -- construction ------------------------------------------------------------------------

inp_SurfaceVisitor::inp_SurfaceVisitor(inpM_SetMap const& nodeSets, inpM_SetMap const& elementSets,
                                       inpM_InstanceMap<inp_MapInt2Element> const& elements,
                                       inp_CoordMap const& coords)
    : m_nodeSets(nodeSets),
      m_elementSets(elementSets),
      m_elementMap(elements),
      m_coordMap(coords) {}

inp_SurfaceVisitor::~inp_SurfaceVisitor() = default;

void inp_SurfaceVisitor::DefaultAction(inp_Keyword&) {}

// -- *SURFACE -----------------------------------------------------------------------------

void inp_SurfaceVisitor::VisitSurface(inp_Keyword& keyword) {
    m_nodeSurface = false;
    cow_String type = surfaceKind(keyword);
    if (type == "EULERIANMATERIAL" || type == "XFEM") return;
    if (inp_Utils::IsAnalyticalSurfaceType(type) && CurrentScope().IsEmpty()) {
        AddError(inp_Utils::MessageInKeyword(
            keyword, atr("When the *SURFACE option is used to define an analytical surface,  it "
                         "can only appear within a part (or part instance) definition, even if the "
                         "rigid body is defined at the assembly level.")));
        return;
    }
    if (keyword.HasParameter("combine") || keyword.HasParameter("crop"))
        type = kindOfFirstSurface(keyword, type);
    if (inp_Utils::IsAnalyticalSurfaceType(type)) {
        VisitAnalyticalSurface(keyword);
        return;
    }
    m_nodeSurface = type == "NODE";
    VisitSurfaceDefinition(keyword);
}

// The first surface of the data that exists in the scope decides. For a
// combination that is the first such name in data order: the reader drops a
// missing name, and one at the head of the data must not turn the result
// into the other form, which would lose every member that follows. A crop
// names its source in row 0, column 0 alone. Without such a surface TYPE
// stands; so it does at the assembly level, whose scope has no surfaces of
// its own: the assembly readers combine and crop whole assembly surfaces,
// whatever the form of their parts.
cow_String inp_SurfaceVisitor::kindOfFirstSurface(inp_Keyword const& keyword,
                                                  cow_String const& type) const {
    inp_DataArray const& data = keyword.Data();
    bool const sourceOnly = !keyword.HasParameter("combine");
    int const rows = sourceOnly ? std::min(data.Rows(), 1) : data.Rows();
    for (int i = 0; i < rows; ++i) {
        int const cols = sourceOnly ? std::min(data.Cols(i), 1) : data.Cols(i);
        for (int j = 0; j < cols; ++j) {
            if (data.IsNone(i, j)) continue;
            cow_String const name = data.AsString(i, j);
            if (!m_surfaceMap.IsMemberPartInstanceSurface(CurrentScope(), name)) continue;
            inpM_SurfaceTypes const first =
                m_surfaceMap.ConstGetPartInstanceSurface(CurrentScope(), name)->Type();
            return first == inpM_NodeAreaSurfaceType ? "NODE" : "ELEMENT";
        }
    }
    return type;
}

// -- inside a part or instance -----------------------------------------------------------------

void inp_SurfaceVisitor::CreateInstanceLevelSurface(inp_Keyword& keyword) {
    cow_String const scope = CurrentScope();
    ZELBAS_ASSERT_TEXT(!scope.IsEmpty(), "currentScope.Length() > 0");
    inpM_PartInstanceSurfaceHandle surface = CreateSurface(surfaceType(m_nodeSurface));
    RowReader rows(keyword, m_nodeSurface, &surface, nullptr);
    for (int i = rows.First(); i < rows.End(); ++i) {
        if (!rows.StartRow(i)) continue;
        inp_Types::typeEnm const firstType = rows.FirstType();
        if (firstType != inp_Types::inp_STRING) {
            rows.TakeLabel(cow_String(), rows.FirstLabel(firstType));
            continue;
        }
        rows.FlushLabels();
        cow_String const name = rows.FirstText();
        if (rows.IsCrop())
            cropInScope(keyword, name, surface, rows.MissingSurfaces());
        else
            addSetOfScope(rows, name);
    }
    rows.FlushLabels();
    bool const internal = keyword.HasParameter("internal");
    if (surface->IsInternal() != internal) surface.Get().SetInternal(internal);
    m_surfaceMap.InsertPartInstanceSurface(scope, parameterText(keyword, "name"), surface);
    reportMissing(keyword, kMissingSets, rows.MissingSets());
    reportMissing(keyword, kMissingCropSources, rows.MissingSurfaces());
}

// A scope named in quotes holds its sets under the name without them.
void inp_SurfaceVisitor::addSetOfScope(RowReader& rows, cow_String const& name) {
    inpM_SetMap const& sets = m_nodeSurface ? m_nodeSets : m_elementSets;
    inpM_SetHandle const* set = sets.FindNestedSet(CurrentScope(), name);
    if (set == nullptr) set = sets.FindNestedSet(inpM_Utils::RemoveQuotes(CurrentScope()), name);
    if (set == nullptr) {
        rows.MissingSets().Append(name);
        return;
    }
    rows.AddIds(cow_String(), (*set)->ConstGetIdList());
}

// The box is read first, so that its warnings come whether or not the
// source exists. Without the scope's elements nothing is cropped, and the
// surface stays empty.
void inp_SurfaceVisitor::cropInScope(inp_Keyword const& keyword, cow_String const& name,
                                     inpM_PartInstanceSurfaceHandle& surface,
                                     cow_List<cow_String>& missing) {
    inp_CropDefinition const crop = readCrop(keyword);
    cow_String const& scope = CurrentScope();
    if (!m_surfaceMap.IsMemberPartInstanceSurface(scope, name)) {
        missing.Append(name);
        return;
    }
    inpM_PartInstanceSurfaceHandle const source =
        m_surfaceMap.ConstGetPartInstanceSurface(scope, name);
    inp_MapInt2Element const* elements = elementsOf(scope);
    if (!crop.IsValid() || elements == nullptr) return;
    surface = source;  // of the source's own form; Crop writes to a copy
    Crop(surface.Get(), *source, coordsOf(scope), *elements, crop);
}

void inp_SurfaceVisitor::CreateCombinedInstanceLevelSurface(inp_Keyword& keyword) {
    cow_String const scope = CurrentScope();
    ZELBAS_ASSERT_TEXT(!scope.IsEmpty(), "currentScope.Length() > 0");
    inpM_PartInstanceSurfaceHandle result = CreateSurface(surfaceType(m_nodeSurface));
    CombineRule const rule = combineRule(keyword);
    cow_List<cow_String> missing;
    forEachMemberName(keyword, [&](cow_String const& name, bool firstOfRow) {
        if (!m_surfaceMap.IsMemberPartInstanceSurface(scope, name)) {
            missing.Append(name);
            return false;
        }
        inpM_PartInstanceSurfaceHandle const member =
            m_surfaceMap.ConstGetPartInstanceSurface(scope, name);
        combineInto(result.Get(), rule, firstOfRow, *member);
        return true;
    });
    if (keyword.HasParameter("internal")) result.Get().SetInternal(true);
    m_surfaceMap.InsertPartInstanceSurface(scope, parameterText(keyword, "name"), result);
    reportMissing(keyword, kMissingCombined, missing);
}

// -- at the assembly level ---------------------------------------------------------------------

// Plain labels are read without strings: an integer is a node of the
// assembly, and "instance.label" a member of the instance.
inpM_AssemblyInstanceSurface inp_SurfaceVisitor::CreateAssemblyLevelSurface(inp_Keyword& keyword) {
    ZELBAS_ASSERT_TEXT(CurrentScope().IsEmpty(), "currentScope.Length() == 0");
    inpM_AssemblyInstanceSurface surface;
    surface.SetInternal(keyword.HasParameter("internal"));
    RowReader rows(keyword, m_nodeSurface, nullptr, &surface);
    cow_String instance;
    int label = 0;
    for (int i = rows.First(); i < rows.End(); ++i) {
        if (!rows.StartRow(i)) continue;
        if (m_nodeSurface && rows.FirstIsPlainLabel(label)) {
            rows.TakeLabel(cow_String(), label);
        } else if (rows.FirstIsPlainScopedId(instance, label)) {
            rows.TakeLabel(instance, label);
        } else {
            cow_String const value = rows.FirstText();
            cow_List<cow_String> const pieces = inp_Utils::SplitScopedSet(value);
            if (pieces.Length() == 1)
                addAssemblyValue(rows, surface, value);
            else
                addScopedValue(rows, surface, value, pieces);
        }
    }
    rows.FlushLabels();
    reportMissing(keyword, kMissingSets, rows.MissingSets());
    reportMissing(keyword, kMissingCropSources, rows.MissingSurfaces());
    return surface;
}

// A value of one piece: a set of the assembly (each instance part of it
// under its instance, and for nodes the assembly's own ids), a node of the
// assembly, or with CROP an assembly surface. Anything else names nothing
// that exists at this level (an element surface has no faces of the
// assembly's own) and is listed as missing.
void inp_SurfaceVisitor::addAssemblyValue(RowReader& rows, inpM_AssemblyInstanceSurface& surface,
                                          cow_String const& value) {
    if (inp_Utils::IsSetName(value) && rows.IsCrop()) {
        cropAssemblySurface(rows, surface, value);
        return;
    }
    inpM_SetMap const& sets = m_nodeSurface ? m_nodeSets : m_elementSets;
    if (inp_Utils::IsSetName(value) && sets.HasSet(value)) {
        inpM_BaseSet const& set = *sets.ConstGetSet(value);
        set.ConstGetInstanceIdLists().ForEachSorted(
            [&rows](cow_String const& instance, cow_List<int> const& ids) {
                rows.AddIds(instance, ids);
            });
        cow_List<int> const own = m_nodeSurface ? set.ConstGetAssemblyIdList() : cow_List<int>();
        if (!own.IsEmpty()) rows.AddIds(cow_String(), own);
    } else if (inp_Utils::IsId(value) && m_nodeSurface) {
        rows.TakeLabel(cow_String(), std::atoi(value.CStr()));
    } else {
        rows.MissingSets().Append(value);
    }
}

// A value of several pieces: instance.set (or assembly.instance.set), with
// CROP instance.surface, or instance.label. A name of an instance written in
// quotes is sought without them as well. An empty first piece names no
// instance.
void inp_SurfaceVisitor::addScopedValue(RowReader& rows, inpM_AssemblyInstanceSurface& surface,
                                        cow_String const& value,
                                        cow_List<cow_String> const& pieces) {
    int const n = pieces.Length();
    if (inp_Utils::IsScopedSetName(pieces)) {
        if (rows.IsCrop()) {
            cropInstanceSurface(rows, surface, pieces[n - 2], pieces[n - 1], value);
            return;
        }
        inpM_SetMap const& sets = m_nodeSurface ? m_nodeSets : m_elementSets;
        cow_String instance = pieces[n - 2];
        inpM_SetHandle const* set = sets.FindNestedSet(instance, pieces[n - 1]);
        if (set == nullptr) {
            instance = inpM_Utils::RemoveQuotes(instance);
            set = sets.FindNestedSet(instance, inpM_Utils::RemoveQuotes(pieces[n - 1]));
        }
        if (set != nullptr)
            rows.AddIds(instance, (*set)->ConstGetIdList());
        else
            rows.MissingSets().Append(value);
    } else if (inp_Utils::IsScopedSetId(pieces) && !pieces[0].IsEmpty()) {
        rows.TakeLabel(pieces[0], std::atoi(pieces[n - 1].CStr()));
    } else if (!inp_Utils::IsSetName(pieces[0])) {
        AddError(inp_Utils::MessageInKeyword(
            rows.Keyword(), atr("Invalid part instance label \"%1$s\"", pieces[0])));
    } else {
        rows.MissingSets().Append(value);
    }
}

void inp_SurfaceVisitor::cropAssemblySurface(RowReader& rows, inpM_AssemblyInstanceSurface& surface,
                                             cow_String const& name) {
    inp_CropDefinition const crop = readCrop(rows.Keyword());
    if (!m_surfaceMap.IsMemberAssemblyInstanceSurface(name)) {
        rows.MissingSurfaces().Append(name);
        return;
    }
    inpM_AssemblyInstanceSurface const source = m_surfaceMap.ConstGetAssemblyInstanceSurface(name);
    surface.Add(source);
    if (crop.IsValid()) Crop(surface, source, m_elementMap, m_coordMap, crop);
}

void inp_SurfaceVisitor::cropInstanceSurface(RowReader& rows, inpM_AssemblyInstanceSurface& surface,
                                             cow_String const& instance, cow_String const& name,
                                             cow_String const& value) {
    inp_CropDefinition const crop = readCrop(rows.Keyword());
    inpM_PartInstanceSurfaceHandle const* source = findSurface(instance, name);
    if (source == nullptr) {
        rows.MissingSurfaces().Append(value);
        return;
    }
    cow_String const found = m_surfaceMap.IsMemberPartInstanceSurface(instance, name)
                                 ? instance
                                 : inpM_Utils::RemoveQuotes(instance);
    inpM_PartInstanceSurfaceHandle const member = *source;
    surface.Add(found, *member);
    inp_MapInt2Element const* elements = elementsOf(found);
    if (crop.IsValid() && elements != nullptr)
        Crop(surface, found, *member, coordsOf(found), *elements, crop);
}

inpM_AssemblyInstanceSurface inp_SurfaceVisitor::CreateCombinedAssemblyLevelSurface(
    inp_Keyword& keyword) {
    ZELBAS_ASSERT_TEXT(CurrentScope().IsEmpty(), "currentScope.Length() == 0");
    inpM_AssemblyInstanceSurface result;
    result.SetInternal(keyword.HasParameter("internal"));
    CombineRule const rule = combineRule(keyword);
    cow_List<cow_String> missing;
    forEachMemberName(keyword, [&](cow_String const& name, bool firstOfRow) {
        cow_List<cow_String> const pieces = inp_Utils::SplitScopedSet(name);
        int const n = pieces.Length();
        if (n == 1 && m_surfaceMap.IsMemberAssemblyInstanceSurface(name)) {
            inpM_AssemblyInstanceSurface const member =
                m_surfaceMap.ConstGetAssemblyInstanceSurface(name);
            combineInto(result, rule, firstOfRow, member);
            return true;
        }
        inpM_PartInstanceSurfaceHandle const* member =
            n > 1 ? findSurface(pieces[n - 2], pieces[n - 1]) : nullptr;
        if (member == nullptr) {
            missing.Append(name);
            return false;
        }
        cow_String const instance =
            m_surfaceMap.IsMemberPartInstanceSurface(pieces[n - 2], pieces[n - 1])
                ? pieces[n - 2]
                : inpM_Utils::RemoveQuotes(pieces[n - 2]);
        inpM_PartInstanceSurfaceHandle const held = *member;
        combineInto(result, rule, firstOfRow, instance, *held);
        return true;
    });
    reportMissing(keyword, kMissingCombined, missing);
    return result;
}

// -- helpers ---------------------------------------------------------------------------------

inpM_PartInstanceSurfaceHandle const* inp_SurfaceVisitor::findSurface(
    cow_String const& instance, cow_String const& name) const {
    if (m_surfaceMap.IsMemberPartInstanceSurface(instance, name))
        return &m_surfaceMap.ConstGetPartInstanceSurface(instance, name);
    cow_String const unquoted = inpM_Utils::RemoveQuotes(instance);
    cow_String const bare = inpM_Utils::RemoveQuotes(name);
    if (m_surfaceMap.IsMemberPartInstanceSurface(unquoted, bare))
        return &m_surfaceMap.ConstGetPartInstanceSurface(unquoted, bare);
    return nullptr;
}

inp_MapInt2Element const* inp_SurfaceVisitor::elementsOf(cow_String const& scope) const {
    if (!m_elementMap.IsMember(scope)) return nullptr;
    inpM_InstanceMap<inp_MapInt2Element> const& level = m_elementMap.ConstGetMap(scope);
    return level.HasValue() ? &level.ConstGet() : nullptr;
}

inp_MapInt2Coord inp_SurfaceVisitor::coordsOf(cow_String const& scope) const {
    return m_coordMap.IsMember(scope) ? m_coordMap.ConstGet(scope).ConstGet() : inp_MapInt2Coord();
}

inp_CropDefinition inp_SurfaceVisitor::readCrop(inp_Keyword const& keyword) {
    inp_CropDefinition crop(keyword);
    for (atr_String const& warning : crop.Warnings()) AddWarning(warning);
    return crop;
}

void inp_SurfaceVisitor::reportMissing(inp_Keyword const& keyword, char const* title,
                                       cow_List<cow_String> const& names) {
    if (names.IsEmpty()) return;
    atr_String const text =
        inpM_Utils::FormatCollectedErrors(atr(title, parameterText(keyword, "name")), names);
    AddError(inp_Utils::MessageInKeyword(keyword, text));
}
