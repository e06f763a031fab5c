// The handlers of the keywords that give a deck its shape: parts, instances,
// the assembly, steps and restarts, the mesh and its sets, named materials
// and boundaries, the data-file keywords; and the two rules that run through
// many keywords at once, as tables: the constructs an assembly model refuses
// and the parameters a keyword cannot do without.
//
// Each handler starts with the generic handler of its schema row unless it
// says otherwise.

#include <cctype>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "deck/inp_ElementDataArrayImpl.h"
#include "deck/inp_Exceptions.h"
#include "deck/inp_NodeDataArrayImpl.h"
#include "expansion/inp_KeywordExpansionVisitor.h"
#include "expansion/inp_Schema.h"
#include "support/ZELBasAssert.h"

namespace {

constexpr char const* kAssemblyWords[] = {"name", nullptr};
constexpr int kSetLineItems = 16;
constexpr int kTimePointsLineItems = 8;

inp_WordTable wordsOf(inp_SchemaRow const* row) {
    return row ? row->parameters : nullptr;
}

cow_String textOf(inp_Keyword const& keyword, char const* name) {
    inp_Item const* item = keyword.Parameters().Find(name);
    return item ? item->AsString() : cow_String();
}

bool isLetter(char c) {
    return std::isalpha(static_cast<unsigned char>(c)) != 0;
}

// -- the assembly-model rule -----------------------------------------------------------------

enum class RefusedWhen : unsigned char {
    Always,
    ResultsGoToOdb,        // the results format is odb
    FileGiven,             // `file` is present
    ShortFiber,            // `type` is SHORTFIBER
    FileOfAnUnmappedType,  // `file` and `type` given, and the type is not mapped by file
};

struct AssemblyModelRule {
    inp_KeywordEnm key;
    RefusedWhen condition;
    char const* message;
};

// The wording differs from line to line ("The following option", "Option")
// and is kept as each line has it.
constexpr AssemblyModelRule kAssemblyModelRules[] = {
    {inp_kw_MatrixAssemble, RefusedWhen::Always,
     "The following option is currently not supported in a model defined in terms of an "
     "assembly of part instances: *MATRIX ASSEMBLE"},
    {inp_kw_MatrixInput, RefusedWhen::Always,
     "The following option is currently not supported in a model defined in terms of an "
     "assembly of part instances: *MATRIX INPUT"},
    {inp_kw_Nmap, RefusedWhen::Always,
     "The following option is currently not supported in a model defined in terms of an "
     "assembly of part instances: *NMAP"},
    {inp_kw_SubstructureCopy, RefusedWhen::Always,
     "Option is currently not supported in a model defined in terms of an assembly of part "
     "instances: *SUBSTRUCTURE COPY"},
    {inp_kw_SubstructureDelete, RefusedWhen::Always,
     "The following option is currently not supported in a model defined in terms of an "
     "assembly of part instances: *SUBSTRUCTURE DELETE"},
    {inp_kw_SubstructureDirectory, RefusedWhen::Always,
     "The following option is currently not supported in a model defined in terms of an "
     "assembly of part instances: *SUBSTRUCTURE DIRECTORY"},
    {inp_kw_SubstructureGenerate, RefusedWhen::Always,
     "The following option is currently not supported in a model defined in terms of an "
     "assembly of part instances: *SUBSTRUCTURE GENERATE"},
    {inp_kw_SubstructurePath, RefusedWhen::Always,
     "The following option is currently not supported in a model defined in terms of an "
     "assembly of part instances: *SUBSTRUCTURE PATH"},
    {inp_kw_SubstructureProperty, RefusedWhen::Always,
     "The following option is currently not supported in a model defined in terms of an "
     "assembly of part instances: *SUBSTRUCTURE PROPERTY"},
    {inp_kw_SymmetricModelGeneration, RefusedWhen::ResultsGoToOdb,
     "The following option is currently not supported in a model defined in terms of an "
     "assembly of part instances: *SYMMETRIC MODEL GENERATION"},
    {inp_kw_SymmetricResultsTransfer, RefusedWhen::ResultsGoToOdb,
     "The following option is currently not supported in a model defined in terms of an "
     "assembly of part instances: *SYMMETRIC RESULTS TRANSFER"},
    {inp_kw_UserElement, RefusedWhen::FileGiven,
     "The following option is currently not supported in a model defined in terms of an "
     "assembly of part instances: *USER ELEMENT, FILE="},
    // Both keywords share the one message.
    {inp_kw_ParameterShapeVariation, RefusedWhen::FileGiven,
     "Option is currently not supported in a model defined in terms of an assembly of part "
     "instances: *PARAMETER SHAPE VARIATION, FILE="},
    {inp_kw_DesignShapeVariation, RefusedWhen::FileGiven,
     "Option is currently not supported in a model defined in terms of an assembly of part "
     "instances: *PARAMETER SHAPE VARIATION, FILE="},
    {inp_kw_Elastic, RefusedWhen::ShortFiber,
     "Type=SHORTFIBER (used for CMOLD) is currently not supported in a model defined in terms "
     "of an assembly of part instances."},
    {inp_kw_Expansion, RefusedWhen::ShortFiber,
     "Type=SHORTFIBER (used for CMOLD) is currently not supported in a model defined in terms "
     "of an assembly of part instances."},
    {inp_kw_InitialConditions, RefusedWhen::FileOfAnUnmappedType,
     "Option is currently not supported in a model defined in terms of an assembly of part "
     "instances: *INITIAL CONDITIONS, TYPE=%s, FILE="},
};

// The initial conditions that a results file can give to the instances of
// an assembly model.
bool isMappedByFile(cow_String const& type) {
    for (char const* mapped :
         {"TEMPERATURE", "PRESSURESTRESS", "FIELD", "POREPRESSURE", "STRESS", "RATIO"})
        if (type == mapped) return true;
    return false;
}

bool isRefused(RefusedWhen condition, inp_Keyword const& keyword, bool resultsFormatOdb) {
    switch (condition) {
        case RefusedWhen::Always:
            return true;
        case RefusedWhen::ResultsGoToOdb:
            return resultsFormatOdb;
        case RefusedWhen::FileGiven:
            return keyword.HasParameter("file");
        case RefusedWhen::ShortFiber:
            return keyword.HasParameter("type") && textOf(keyword, "type") == "SHORTFIBER";
        case RefusedWhen::FileOfAnUnmappedType:
            return keyword.HasParameter("file") && keyword.HasParameter("type") &&
                   !isMappedByFile(textOf(keyword, "type"));
    }
    return false;
}

// -- the required parameters -------------------------------------------------------------------

enum class FailsWhen : unsigned char {
    Absent,
    AbsentOrNoString,  // also when the item is of another type than string
};

enum class Outcome : unsigned char {
    ErrorAndBlank,
    FatalErrorKept,  // a fatal error, and the keyword stays
};

struct RequiredParameter {
    inp_KeywordEnm key;
    std::string_view parameter;
    FailsWhen test;
    char const* message;
    Outcome outcome = Outcome::ErrorAndBlank;
};

// A keyword's lines are tested in table order.
constexpr RequiredParameter kRequiredParameters[] = {
    {inp_kw_Amplitude, "name", FailsWhen::AbsentOrNoString, "The NAME parameter is required.",
     Outcome::FatalErrorKept},
    {inp_kw_Capacity, "type", FailsWhen::Absent, "The TYPE parameter is required."},
    {inp_kw_ConnectorDamageEvolution, "type", FailsWhen::AbsentOrNoString,
     "The TYPE parameter is required."},
    {inp_kw_ConnectorDerivedComponent, "name", FailsWhen::AbsentOrNoString,
     "The NAME parameter is required."},
    {inp_kw_ContactClearance, "name", FailsWhen::Absent, "The NAME parameter is required."},
    {inp_kw_Fastener, "interactionname", FailsWhen::AbsentOrNoString,
     "The INTERACTIONNAME parameter is required."},
    {inp_kw_Fastener, "property", FailsWhen::AbsentOrNoString,
     "The PROPERTY parameter is required."},
    {inp_kw_FastenerProperty, "name", FailsWhen::AbsentOrNoString,
     "The NAME parameter is required."},
    {inp_kw_HeatCap, "elset", FailsWhen::Absent, "The ELSET parameter is required."},
    {inp_kw_SpatialDistribution, "name", FailsWhen::AbsentOrNoString,
     "The NAME parameter is required."},
    {inp_kw_SpotWeld, "property", FailsWhen::AbsentOrNoString,
     "The PROPERTY parameter is required."},
    {inp_kw_SpotWeld, "referencenodeset", FailsWhen::Absent,
     "The REFERENCENODESET parameter is required."},
    {inp_kw_SpotWeldInteraction, "interactionname", FailsWhen::AbsentOrNoString,
     "The INTERACTIONNAME parameter is required."},
    {inp_kw_SpotWeldProperty, "name", FailsWhen::AbsentOrNoString,
     "The NAME parameter is required."},
    {inp_kw_SurfacePropertyAssignment, "property", FailsWhen::Absent,
     "The PROPERTY parameter is required."},
    {inp_kw_Transform, "nset", FailsWhen::Absent, "The NSET parameter is required."},
    // The same rule, told with the keywords themselves.
    {inp_kw_Include, "input", FailsWhen::Absent, "The \"input\" parameter is required."},
    {inp_kw_Nset, "nset", FailsWhen::Absent, "The NSET parameter is required."},
    {inp_kw_Elset, "elset", FailsWhen::Absent, "The ELSET parameter is required."},
    {inp_kw_Surface, "name", FailsWhen::AbsentOrNoString, "The NAME parameter is required."},
};

// The rules of one keyword stand together in the table; this gives them,
// an empty span for the many keywords without any, at one look.
std::span<RequiredParameter const> requiredParameterRules(inp_KeywordEnm key) {
    struct Range {
        std::uint8_t first = 0, count = 0;
    };
    static std::vector<Range> const ranges = [] {
        std::vector<Range> byKey(static_cast<size_t>(inp_keywordKeyLimit));
        for (size_t i = 0; i < std::size(kRequiredParameters); ++i) {
            Range& range = byKey[static_cast<size_t>(kRequiredParameters[i].key)];
            if (range.count == 0) range.first = static_cast<std::uint8_t>(i);
            ZELBAS_ASSERT_TEXT(range.first + range.count == i, "a keyword's rules stand together");
            ++range.count;
        }
        return byKey;
    }();
    auto const index = static_cast<size_t>(key);
    if (index >= ranges.size()) return {};
    return std::span(kRequiredParameters).subspan(ranges[index].first, ranges[index].count);
}

bool isPresent(RequiredParameter const& rule, inp_Keyword const& keyword) {
    inp_Item const* item = keyword.Parameters().Find(rule.parameter);
    if (!item) return false;
    return rule.test == FailsWhen::Absent || item->Type() == inp_Types::inp_STRING;
}

// A name may be quoted; the quote is looked through when there is more after it.
bool startsWithLetterAfterQuote(cow_String const& name) {
    int const first = name.Length() > 1 && name[0] == '"' ? 1 : 0;
    return isLetter(name[first]);
}

}  // namespace

// -- parts, the assembly and its instances -------------------------------------------------

void inp_KeywordExpansionVisitor::HandlePart(inp_Keyword& keyword, inp_SchemaRow const* row) {
    ExpandByRow(keyword, row);
    EnterAssemblyModel();
    inp_Item const* name = keyword.Parameters().Find("name");
    if (!name) {
        fatalError(keyword, atr("Part must have a name."));
        return;
    }
    if (name->Type() != inp_Types::inp_STRING) {
        fatalError(keyword, atr("Part was not assigned a valid name."));
        return;
    }
    cow_String const partName = name->AsString();
    if (!m_knownPartNames.insert(partName).second) {
        errorAtFront(
            keyword,
            atr("Part with the name \"%s\" has already been defined in the model.", partName));
        return;
    }
    m_partNames.Prepend(partName);
}

// The assembly model is entered before anything else, so that the waiting
// messages come out ahead of this keyword's own.
void inp_KeywordExpansionVisitor::HandleAssembly(inp_Keyword& keyword, inp_SchemaRow const*) {
    EnterAssemblyModel();
    ExpandParameters(keyword, kAssemblyWords);
    if (!hasStringParameter(keyword, "name"))
        fatalError(keyword, atr("The NAME parameter is required."));
    if (++m_assemblyCount > 1) error(keyword, atr("Only one assembly can be defined in a model."));
    // Instance names need only be unique within their assembly.
    m_instanceNames.Clear();
    m_knownInstanceNames.clear();
}

// A part must stand above the instances that use it. The instance is mapped
// to its part even when that part is unknown or the name is taken.
void inp_KeywordExpansionVisitor::HandleInstance(inp_Keyword& keyword, inp_SchemaRow const* row) {
    EnterAssemblyModel();
    ExpandParameters(keyword, wordsOf(row));
    if (keyword.HasParameter("instance")) {
        if (keyword.HasParameter("name"))
            error(keyword, atr("Instance name should not be given in the case the instance is to "
                               "be imported"));
        return;
    }
    bool const named = hasStringParameter(keyword, "name");
    if (!named) fatalError(keyword, atr("Instance must have a name"));
    if (!hasStringParameter(keyword, "part")) {
        fatalError(keyword, atr("Instance must refer to a part. "));
        return;
    }
    if (!named) return;

    cow_String const instanceName = textOf(keyword, "name");
    cow_String const partName = textOf(keyword, "part");
    if (m_knownInstanceNames.contains(instanceName)) {
        errorAtFront(keyword, atr("Instance with the name \"%s\" already exists in the assembly.",
                                  instanceName));
    } else if (m_knownPartNames.contains(partName)) {
        m_instanceNames.Prepend(instanceName);
        m_knownInstanceNames.insert(instanceName);
    } else {
        errorAtFront(keyword, atr("Part with the name \"%s\" has not been defined.", partName));
    }
    m_instancePartNames.Insert(instanceName, partName);
    m_instancePartCopy.Insert(instanceName, partName);
}

// Expands nothing: the keyword only closes a part.
void inp_KeywordExpansionVisitor::HandleEndPart(inp_Keyword& keyword, inp_SchemaRow const*) {
    if (!m_featureEnhanced)
        error(keyword, atr("Misplaced keyword: No matching *Part keyword has been defined."));
}

void inp_KeywordExpansionVisitor::HandleEndAssembly(inp_Keyword& keyword, inp_SchemaRow const*) {
    inp_Visitor::VisitEndAssembly(keyword);
}

void inp_KeywordExpansionVisitor::HandleEndInstance(inp_Keyword& keyword, inp_SchemaRow const*) {
    inp_Visitor::VisitEndInstance(keyword);
}

void inp_KeywordExpansionVisitor::HandleEndStep(inp_Keyword& keyword, inp_SchemaRow const*) {
    inp_Visitor::VisitEndStep(keyword);
}

// -- steps and restarts -----------------------------------------------------------------------

// Generated names count from the step counter, which a restart may have set.
// A generated name is not tested against the names already used.
void inp_KeywordExpansionVisitor::HandleStep(inp_Keyword& keyword, inp_SchemaRow const* row) {
    ExpandByRow(keyword, row);
    cow_String const number = cow_String::FromInt(m_stepCounter + 1);
    inp_Item const* name = keyword.Parameters().Find("name");
    if (!name) {
        cow_String generated("Step-");
        generated += number;
        keyword.SetParameter("name", inp_Item(generated));
        m_stepNames.Append(generated);
        m_knownStepNames.insert(generated);
    } else if (cow_String const stepName = name->AsString();
               m_knownStepNames.insert(stepName).second) {
        m_stepNames.Append(stepName);
    } else {
        errorAtFront(keyword, atr("Step with the name \"%s\" has already been defined.", stepName));
        cow_String unique = stepName;
        unique += "-Duplicate-";
        unique += number;
        keyword.SetParameter("name", inp_Item(unique));
    }
    SetStepName(keyword);
    ++m_stepCounter;
}

// The step offset is read before the parameters are expanded, under the
// exact names only: an abbreviated READ, STEP or INC leaves the counter alone.
void inp_KeywordExpansionVisitor::HandleRestart(inp_Keyword& keyword, inp_SchemaRow const* row) {
    cow_Map<cow_String, inp_Item> const& parameters = keyword.Parameters();
    if (parameters.IsMember("read")) {
        if (inp_Item const* step = parameters.Find("step")) {
            if (step->Type() == inp_Types::inp_INTEGER) {
                m_stepCounter = step->AsInt();
            } else {
                error(keyword, atr("step parameter must be an integer"));
            }
        } else {
            m_stepCounter = m_numberRestartSteps;
        }
        inp_Item const* increment = parameters.Find("inc");
        if (increment && increment->Type() != inp_Types::inp_INTEGER)
            error(keyword, atr("inc parameter must be an integer"));
    }
    ExpandByRow(keyword, row);
}

// -- keywords of the model as a whole --------------------------------------------------------

void inp_KeywordExpansionVisitor::HandleImport(inp_Keyword& keyword, inp_SchemaRow const* row) {
    ExpandByRow(keyword, row);
    if (keyword.HasParameter("hourglass"))
        warning(keyword, atr("THE HOURGLASS PARAMETER HAS BEEN USED WITH *IMPORT. RESULTS SHOULD "
                             "BE INTERPRETED WITH CAUTION."));
    checkRequiredParameter(keyword, "update");
}

// Expands nothing: the keyword is a marker that must not stay in a deck.
void inp_KeywordExpansionVisitor::HandleConflicts(inp_Keyword& keyword, inp_SchemaRow const*) {
    error(keyword, atr("Keyword *Conflicts is generated by Fenrik/Atelier to highlight changes "
                       "made via the Keywords Editor that conflict with changes made subsequently "
                       "via the native GUI."));
}

void inp_KeywordExpansionVisitor::HandleDisplayBody(inp_Keyword& keyword,
                                                    inp_SchemaRow const* row) {
    ExpandByRow(keyword, row);
    if (!hasStringParameter(keyword, "instance"))
        fatalError(keyword, atr("Instance parameter value is invalid or unset"));
}

void inp_KeywordExpansionVisitor::HandleCoSimulationControls(inp_Keyword& keyword,
                                                             inp_SchemaRow const* row) {
    ExpandByRow(keyword, row);
    checkRequiredParameter(keyword, "name");
}

void inp_KeywordExpansionVisitor::HandleIntegratedOutputSection(inp_Keyword& keyword,
                                                                inp_SchemaRow const* row) {
    ExpandByRow(keyword, row);
    checkRequiredParameter(keyword, "name");
    checkRequiredParameter(keyword, "surface");
}

// -- the mesh -----------------------------------------------------------------------------------

// The data are packed into their compact form here. A conversion failure
// blanks the keyword through Visit; a caller that has turned bulk conversion
// off keeps the raw lines instead, without a message.
void inp_KeywordExpansionVisitor::HandleNode(inp_Keyword& keyword, inp_SchemaRow const* row) {
    ExpandByRow(keyword, row);
    ProcessInputParameter(keyword);
    auto compact = std::make_unique<inp_NodeDataArrayImpl>();
    try {
        compact->SetRaw(keyword.Data());
    } catch (inp_PrimException const&) {
        if (m_bulkConversion) throw;
        return;
    }
    keyword.SetData(inp_DataArray(compact.release()));
}

// This stage does not follow the part and instance scopes, so the data stay
// raw here; the compact form is for a subclass or caller that sets a scope.
void inp_KeywordExpansionVisitor::HandleElement(inp_Keyword& keyword, inp_SchemaRow const* row) {
    ExpandByRow(keyword, row);
    ProcessInputParameter(keyword);
    if (keyword.HasParameter("file")) m_elementFileParameter = true;
    if (InstanceName().IsEmpty() && PartName().IsEmpty()) return;
    auto compact = std::make_unique<inp_ElementDataArrayImpl>(keyword.Data());
    keyword.SetData(inp_DataArray(compact.release()));
}

void inp_KeywordExpansionVisitor::HandleNset(inp_Keyword& keyword, inp_SchemaRow const* row) {
    ExpandByRow(keyword, row);
    applyRequiredParameterRules(keyword);
    TruncateEachDataLineBeyondItemN(keyword, kSetLineItems);
}

void inp_KeywordExpansionVisitor::HandleElset(inp_Keyword& keyword, inp_SchemaRow const* row) {
    ExpandByRow(keyword, row);
    applyRequiredParameterRules(keyword);
    TruncateEachDataLineBeyondItemN(keyword, kSetLineItems);
}

void inp_KeywordExpansionVisitor::HandleTimePoints(inp_Keyword& keyword, inp_SchemaRow const* row) {
    ExpandByRow(keyword, row);
    TruncateEachDataLineBeyondItemN(keyword, kTimePointsLineItems);
}

// A blanked surface has no `refnode` left to report.
void inp_KeywordExpansionVisitor::HandleSurface(inp_Keyword& keyword, inp_SchemaRow const* row) {
    ExpandByRow(keyword, row);
    applyRequiredParameterRules(keyword);
    if (keyword.HasParameter("refnode"))
        error(keyword, atr("The parameter REFNODE is deprecated. It must be used on the "
                           "corresponding *RIGID BODY keyword"));
}

void inp_KeywordExpansionVisitor::HandleNmap(inp_Keyword& keyword, inp_SchemaRow const* row) {
    ExpandByRow(keyword, row);
    if (keyword.HasParameter("type") && textOf(keyword, "type") == "BLENDED")
        m_hasNmapBlended = true;
    applyAssemblyModelRule(keyword);
}

// In an order of its own: the enumerations come last. The matrix file is
// only recorded; it is read by a later stage.
void inp_KeywordExpansionVisitor::HandleMatrixInput(inp_Keyword& keyword,
                                                    inp_SchemaRow const* row) {
    ExpandParameters(keyword, wordsOf(row));
    applyAssemblyModelRule(keyword);
    bool const hasInput = keyword.HasParameter("input");
    if (hasInput) m_includedFiles.Append(textOf(keyword, "input"));
    if (keyword.HasParameter("name")) {
        checkNameStartsWithLetter(
            keyword, "The matrix name must be an alphanumeric string starting with an alphabet. ");
    } else {
        error(keyword, atr("The NAME parameter is required."));
    }
    if (keyword.HasParameter("matrix") && !hasInput)
        error(keyword, atr("The MATRIX parameter must be defined together with the INPUT parameter "
                           "for the matrix input from SIM. This paramener must not be specified in "
                           "other cases."));
    expandRowEnumerations(keyword, row);
}

// -- named things -----------------------------------------------------------------------------

// Unlike the boundary's, a material name passes on a leading quote alone.
void inp_KeywordExpansionVisitor::HandleMaterial(inp_Keyword& keyword, inp_SchemaRow const* row) {
    ExpandByRow(keyword, row);
    inp_Item const* name = keyword.Parameters().Find("name");
    if (!name) {
        error(keyword, atr("The NAME parameter is required."));
        return;
    }
    if (name->Type() == inp_Types::inp_STRING) {
        char const first = name->AsString()[0];
        if (first == '"' || isLetter(first)) return;
    }
    error(keyword,
          atr("The material name must be an alphanumeric string starting with an alphabet. "));
}

void inp_KeywordExpansionVisitor::HandleBoundary(inp_Keyword& keyword, inp_SchemaRow const* row) {
    ExpandByRow(keyword, row);
    checkNameStartsWithLetter(
        keyword, "The boundary name must be an alphanumeric string starting with an alphabet. ");
}

void inp_KeywordExpansionVisitor::checkNameStartsWithLetter(inp_Keyword& keyword,
                                                            char const* message) {
    inp_Item const* name = keyword.Parameters().Find("name");
    if (!name) return;
    if (name->Type() == inp_Types::inp_STRING && startsWithLetterAfterQuote(name->AsString()))
        return;
    error(keyword, atr(message));
}

// -- data files -------------------------------------------------------------------------------

void inp_KeywordExpansionVisitor::HandleDataFileKeyword(inp_Keyword& keyword,
                                                        inp_SchemaRow const* row) {
    ExpandByRow(keyword, row);
    ProcessInputParameter(keyword);
}

// A spectrum may name its data file by `file` as well as by `input`.
void inp_KeywordExpansionVisitor::HandleSpectrum(inp_Keyword& keyword, inp_SchemaRow const* row) {
    ExpandByRow(keyword, row);
    ProcessInputParameter(keyword);
    consumeFileParameter(keyword, "file");
}

// *DESIGN SHAPE VARIATION has the words of this keyword.
void inp_KeywordExpansionVisitor::HandleParameterShapeVariation(inp_Keyword& keyword,
                                                                inp_SchemaRow const*) {
    ExpandByRow(keyword, inp_Schema::Find(inp_kw_ParameterShapeVariation));
    ProcessInputParameter(keyword);
    applyAssemblyModelRule(keyword);
}

// -- the table-driven rules ---------------------------------------------------------------------

void inp_KeywordExpansionVisitor::HandleKeywordWithRequiredParameters(inp_Keyword& keyword,
                                                                      inp_SchemaRow const* row) {
    ExpandByRow(keyword, row);
    applyRequiredParameterRules(keyword);
}

// The data file is read first: its errors come before those of the
// parameters, and a keyword blanked for a missing parameter still had its
// file counted among the included files.
void inp_KeywordExpansionVisitor::HandleDataFileKeywordWithRequiredParameters(
    inp_Keyword& keyword, inp_SchemaRow const* row) {
    ExpandByRow(keyword, row);
    ProcessInputParameter(keyword);
    applyRequiredParameterRules(keyword);
}

void inp_KeywordExpansionVisitor::HandleAssemblyModelRule(inp_Keyword& keyword,
                                                          inp_SchemaRow const* row) {
    ExpandByRow(keyword, row);
    applyAssemblyModelRule(keyword);
}

void inp_KeywordExpansionVisitor::applyAssemblyModelRule(inp_Keyword& keyword) {
    for (AssemblyModelRule const& rule : kAssemblyModelRules) {
        if (rule.key != keyword.Keyword()) continue;
        if (!isRefused(rule.condition, keyword, m_resultsFormatOdb)) return;
        AddAssemblyModelError(keyword, rule.condition == RefusedWhen::FileOfAnUnmappedType
                                           ? atr(rule.message, textOf(keyword, "type"))
                                           : atr(rule.message));
        return;
    }
}

// Once a failure has blanked the keyword, the lines after it find an empty
// map and fail too. Their messages still name the keyword as it stood in
// the deck, not the blanked record.
void inp_KeywordExpansionVisitor::applyRequiredParameterRules(inp_Keyword& keyword) {
    std::optional<inp_Keyword> asWritten;  // made only when blanking
    for (RequiredParameter const& rule : requiredParameterRules(keyword.Keyword())) {
        if (isPresent(rule, keyword)) continue;
        inp_Keyword const& where = asWritten ? *asWritten : keyword;
        if (rule.outcome == Outcome::FatalErrorKept) {
            fatalError(where, atr(rule.message));
            continue;
        }
        error(where, atr(rule.message));
        if (asWritten) continue;
        asWritten = keyword;
        blank(keyword);
    }
}
