#pragma once
// The stage that turns what the parser stored into what every later stage may
// rely on. The parser keeps parameter names and values as the user wrote
// them; this visitor knows, from the keyword schema, which names a keyword
// accepts and which words an enumerated parameter may take. It expands every
// abbreviation to the whole word, normalises string values, reads the data
// files named by `input`, cuts over-long set lines, and reports what is wrong.
// A keyword whose handling raises a deck exception is blanked (key 0) and the
// walk goes on.
//
// It never adds a keyword and never reorders the list. One object per run:
// configure it with the setters, walk the list, read the results back.
//
// Dispatch: Visit looks the keyword's key up once in a table built from the
// schema and from the stage's own handlers (inp_KeywordExpansionDispatch.cpp),
// calls what it finds, then walks the suboptions. The per-keyword handlers of
// the base class (VisitNode, ...) are bypassed, so a subclass adapts this
// stage through DefaultAction, not through them. With them goes the base's
// following of scopes: the part, assembly and instance names stay empty here,
// which a rule of *ELEMENT depends on, and *SUBSTRUCTURE PATH levels are not
// counted. *STEP sets the step name itself, and *END ASSEMBLY, *END INSTANCE
// and *END STEP go to the base handlers, which expand as DefaultAction does
// and then clear their scope's name.

#include <span>
#include <unordered_set>
#include <vector>

#include "expansion/inp_SchemaRow.h"
#include "pipeline/inp_Visitor.h"
#include "support/cow_Map.h"
#include "support/inpM_InstanceMap.h"

class inp_KeywordExpansionVisitor : public inp_Visitor {
  public:
    inp_KeywordExpansionVisitor();
    ~inp_KeywordExpansionVisitor() override;

    // -- configuration, before the walk -----------------------------------------

    // The directory tried for a data file that is not found as written.
    void SetIncludePath(cow_String const& path) { m_includePath = path; }
    void SetNumberRestartSteps(int steps) { m_numberRestartSteps = steps; }
    void SetResultsFormatOdb(bool odb) { m_resultsFormatOdb = odb; }
    void SetBulkConversion(bool bulk) { m_bulkConversion = bulk; }

    // -- results, after the walk (flags only ever go from false to true) ---------

    // The deck has used *PART, *ASSEMBLY or *INSTANCE.
    bool FeatureEnhanced() const noexcept { return m_featureEnhanced; }
    bool IsElementFileParameter() const noexcept { return m_elementFileParameter; }
    bool IsExplicitJob() const noexcept { return m_explicitJob; }
    bool HasRigidSurfaceKeyword() const noexcept { return m_hasRigidSurfaceKeyword; }
    bool HasNmapBlended() const noexcept { return m_hasNmapBlended; }
    bool IsParameterized() const noexcept { return m_parameterized; }
    inpM_InstanceMap<cow_String> const& ConstGetInstancePartNames() const noexcept {
        return m_instancePartNames;
    }
    // Every data file that was read, as written, in order; twice if read twice.
    cow_List<cow_String> const& GetIncludedFiles() const noexcept { return m_includedFiles; }
    // The file name part of each data file that was not found, each once.
    cow_List<cow_String> const& GetMissingIncludedFiles() const noexcept {
        return m_missingIncludedFiles;
    }

    // -- walking ------------------------------------------------------------------

    // The keyword's handling by its route, then its suboptions, with any deck
    // exception of the handling (or of its data conversion) turned into one
    // error: the keyword is blanked and the walk goes on with the next
    // keyword. The keys without a route (the blanked keyword and the model
    // root, whose suboptions are still walked; the end of file and any key
    // outside the keyword table, which fail) take the base walk.
    void Visit(inp_Keyword& keyword) override;
    // A keyword without a handler of its own accepts no parameter at all.
    void DefaultAction(inp_Keyword& keyword) override;

    // -- engine operations, for the handlers ---------------------------------------
    // Every message goes through inp_Utils::MessageInKeyword on its way to a list.

    // Replaces each parameter name by the word of `table` it stands for and
    // normalises string values; see the .cpp for the matching rule, whose
    // asymmetry is deliberate. Unknown names stay as written, with an error.
    // A null table is an empty one.
    void ExpandParameters(inp_Keyword& keyword, char const* const* table);
    // Expands the value of the parameter `name`, which must be present, to
    // the word of `table` it abbreviates. A parameter written without a value
    // becomes none-typed, silently. True when the value is a whole word now
    // (or became none-typed).
    bool ExpandEnum(inp_Keyword& keyword, char const* const* table, cow_String const& name);
    // The number of words of `table` that `value` (upper-cased, trimmed)
    // stands for; `result` gets the word when there is one. An exact word
    // counts 1 wherever it stands; an empty value counts 0.
    static int inp_ExpandEnum(cow_String& result, char const* const* table, cow_String value);
    // ExpandEnum on one data item, written back through the data array.
    bool ExpandEnumData(inp_Keyword& keyword, int row, int col, char const* const* table);

    // Appends the lines of the data file `path` to the keyword's data.
    void ReadInputParameter(cow_String const& path, inp_Keyword& keyword);
    // Reads the file named by `input`, if present, then removes `input`,
    // whether the read succeeded or not.
    void ProcessInputParameter(inp_Keyword& keyword);

    // Each returns whether the keyword passed; a failure is an error.
    bool checkRequiredParameter(inp_Keyword& keyword, cow_String name);
    bool checkRequiredParameterValue(inp_Keyword& keyword, cow_String name);
    // Every word of `table` whose flag (same index) is true must be present.
    bool CheckRequiredParameters(inp_Keyword& keyword, char const* const* table,
                                 bool const* required);
    bool checkRequiredDataline(inp_Keyword& keyword);

    // Cuts every data line to its first `items` items, if any line is longer
    // (one trailing empty item is tolerated), with one warning.
    void TruncateEachDataLineBeyondItemN(inp_Keyword& keyword, int items);

    // The value checks: an absent parameter passes; a present one must have
    // the type the name says. Note that CheckDouble accepts an integer and
    // CheckDoubleOrLabel does not.
    bool CheckInteger(inp_Keyword& keyword, char const* name);
    bool CheckDouble(inp_Keyword& keyword, char const* name);
    bool CheckLabel(inp_Keyword& keyword, char const* name);
    bool CheckFileName(inp_Keyword& keyword, char const* name) { return CheckLabel(keyword, name); }
    bool CheckBoolean(inp_Keyword& keyword, char const* name);
    // None-typed, or written without a value.
    bool CheckNone(inp_Keyword& keyword, char const* name);
    bool CheckIntegerOrLabel(inp_Keyword& keyword, char const* name);
    bool CheckDoubleOrLabel(inp_Keyword& keyword, char const* name);
    bool CheckEnumerated(inp_Keyword& keyword, char const* name, char const* const* table);
    bool CheckIntegerOrEnumerated(inp_Keyword& keyword, char const* name, char const* const* table);

    // Constructs that are legal in a flat deck but not in one made of parts
    // and instances. Whether the deck is an assembly model is known only once
    // its first *PART, *ASSEMBLY or *INSTANCE has passed, which may lie below
    // the construct: until then the message waits, and is dropped if the
    // walk ends first.
    void AddAssemblyModelError(inp_Keyword const& keyword, atr_String const& text);
    // Marks the deck as an assembly model and releases the waiting messages
    // to the errors, in order, behind the errors already there.
    void EnterAssemblyModel();

    // Whether the keyword with this key has a handler of its own beyond the
    // generic handler of its schema row (every keyword of the logic kind has).
    static bool HasHandlerOfItsOwn(int key);

  private:
    using Handler = void (inp_KeywordExpansionVisitor::*)(inp_Keyword&, inp_SchemaRow const*);
    // A keyword with a handler of its own (in inp_KeywordExpansionDispatch.cpp).
    struct OwnHandler {
        inp_KeywordEnm key;
        Handler handler;
    };
    // What a key leads to: the handler and the keyword's schema row (null
    // for a keyword without one).
    struct Route {
        inp_SchemaRow const* row;
        Handler handler;
    };
    class RouteTable;
    // A parameter of the keyword being expanded whose name is a table word.
    struct MatchedParameter {
        char const* word;
        cow_String key;
    };

    static std::span<OwnHandler const> OwnHandlers();
    // Null for a key without a route.
    static Route const* RouteOf(int key);

    // -- the routes that are not a keyword's own ---------------------------------------
    // The generic handler: the row's words, then its enumerations in order.
    void ExpandByRow(inp_Keyword& keyword, inp_SchemaRow const* row);
    // The second half of the generic handler, for handlers that do more
    // between the names and the values. Reads m_matched, so no other
    // ExpandParameters may run in between.
    void expandRowEnumerations(inp_Keyword& keyword, inp_SchemaRow const* row);
    void ExpandNothing(inp_Keyword& keyword, inp_SchemaRow const* row);
    void ExpandAsDefault(inp_Keyword& keyword, inp_SchemaRow const* row);

    // -- the keywords' own handlers: the structure of a deck ---------------------------
    // (inp_StructureKeywordHandlers.cpp)
    void HandlePart(inp_Keyword& keyword, inp_SchemaRow const* row);
    void HandleAssembly(inp_Keyword& keyword, inp_SchemaRow const* row);
    void HandleInstance(inp_Keyword& keyword, inp_SchemaRow const* row);
    void HandleEndPart(inp_Keyword& keyword, inp_SchemaRow const* row);
    // The base handlers: the keyword as DefaultAction leaves it, then the
    // scope closed.
    void HandleEndAssembly(inp_Keyword& keyword, inp_SchemaRow const* row);
    void HandleEndInstance(inp_Keyword& keyword, inp_SchemaRow const* row);
    void HandleEndStep(inp_Keyword& keyword, inp_SchemaRow const* row);
    void HandleStep(inp_Keyword& keyword, inp_SchemaRow const* row);
    void HandleRestart(inp_Keyword& keyword, inp_SchemaRow const* row);
    void HandleImport(inp_Keyword& keyword, inp_SchemaRow const* row);
    void HandleConflicts(inp_Keyword& keyword, inp_SchemaRow const* row);
    void HandleDisplayBody(inp_Keyword& keyword, inp_SchemaRow const* row);
    void HandleCoSimulationControls(inp_Keyword& keyword, inp_SchemaRow const* row);
    void HandleIntegratedOutputSection(inp_Keyword& keyword, inp_SchemaRow const* row);
    void HandleNode(inp_Keyword& keyword, inp_SchemaRow const* row);
    void HandleElement(inp_Keyword& keyword, inp_SchemaRow const* row);
    void HandleNset(inp_Keyword& keyword, inp_SchemaRow const* row);
    void HandleElset(inp_Keyword& keyword, inp_SchemaRow const* row);
    void HandleTimePoints(inp_Keyword& keyword, inp_SchemaRow const* row);
    void HandleSurface(inp_Keyword& keyword, inp_SchemaRow const* row);
    void HandleMaterial(inp_Keyword& keyword, inp_SchemaRow const* row);
    void HandleBoundary(inp_Keyword& keyword, inp_SchemaRow const* row);
    void HandleMatrixInput(inp_Keyword& keyword, inp_SchemaRow const* row);
    void HandleNmap(inp_Keyword& keyword, inp_SchemaRow const* row);
    // Also *DESIGN SHAPE VARIATION, with the words of this keyword.
    void HandleParameterShapeVariation(inp_Keyword& keyword, inp_SchemaRow const* row);
    // The keywords whose data may come from an `input` file.
    void HandleDataFileKeyword(inp_Keyword& keyword, inp_SchemaRow const* row);
    void HandleSpectrum(inp_Keyword& keyword, inp_SchemaRow const* row);
    // The keywords of the table of required parameters, with or without a
    // data file; *INCLUDE is one of them.
    void HandleKeywordWithRequiredParameters(inp_Keyword& keyword, inp_SchemaRow const* row);
    void HandleDataFileKeywordWithRequiredParameters(inp_Keyword& keyword,
                                                     inp_SchemaRow const* row);
    // The keywords whose only check of their own is the assembly-model rule.
    void HandleAssemblyModelRule(inp_Keyword& keyword, inp_SchemaRow const* row);

    // -- the keywords' own handlers: values with a logic of their own --------------------
    // (inp_ValueKeywordHandlers.cpp)
    void HandlePlastic(inp_Keyword& keyword, inp_SchemaRow const* row);
    void HandleInitialConditions(inp_Keyword& keyword, inp_SchemaRow const* row);
    void HandlePermeability(inp_Keyword& keyword, inp_SchemaRow const* row);
    void HandleContactPair(inp_Keyword& keyword, inp_SchemaRow const* row);
    void HandleContactInclusions(inp_Keyword& keyword, inp_SchemaRow const* row);
    void HandleConnectorSection(inp_Keyword& keyword, inp_SchemaRow const* row);
    void HandleRigidBody(inp_Keyword& keyword, inp_SchemaRow const* row);
    void HandleCoupling(inp_Keyword& keyword, inp_SchemaRow const* row);
    void HandleDynamic(inp_Keyword& keyword, inp_SchemaRow const* row);
    void HandleRigidSurface(inp_Keyword& keyword, inp_SchemaRow const* row);
    void HandleParameter(inp_Keyword& keyword, inp_SchemaRow const* row);

    // -- rules shared by the handlers ----------------------------------------------------
    // The constructs refused in an assembly model (inp_StructureKeywordHandlers.cpp):
    // the keyword's line of the rule table, if its condition holds, gives its
    // message by the deferral rule of AddAssemblyModelError.
    void applyAssemblyModelRule(inp_Keyword& keyword);
    // The keyword's lines of the table of required parameters, in order.
    // Each failure is an error and blanks the keyword, so the lines after it
    // fail too (one table line instead gives a fatal error and blanks nothing).
    void applyRequiredParameterRules(inp_Keyword& keyword);
    // The name test of *BOUNDARY and *MATRIX INPUT.
    void checkNameStartsWithLetter(inp_Keyword& keyword, char const* message);
    // The range of `numberbackstresses`, for *PLASTIC and *INITIAL CONDITIONS
    // (inp_ValueKeywordHandlers.cpp).
    void checkNumberOfBackstresses(inp_Keyword& keyword);

    // -- helpers of the engine ----------------------------------------------------------
    // ExpandParameters, remembering in m_matched the names that became words.
    void expandParameterNames(inp_Keyword& keyword, char const* const* table);
    static cow_Map<cow_String, inp_Item> firstParameters(
        cow_Map<cow_String, inp_Item> const& parameters, int count);
    char const* findParameterWord(inp_Keyword const& keyword, cow_String const& name,
                                  char const* const* table);
    cow_String const* matchedKey(char const* word) const;
    void consumeFileParameter(inp_Keyword& keyword, cow_String const& name);
    void readDataLines(cow_String const& path, cow_String const& absolutePath,
                       inp_Keyword& keyword);
    bool checkValue(inp_Keyword& keyword, char const* name, bool (*accepts)(inp_Item const&),
                    char const* format);
    void error(inp_Keyword const& keyword, atr_String const& text);
    // Ahead of every error already listed: the duplicate-name messages.
    void errorAtFront(inp_Keyword const& keyword, atr_String const& text);
    void fatalError(inp_Keyword const& keyword, atr_String const& text);
    void warning(inp_Keyword const& keyword, atr_String const& text);
    // The parameter is present and its item is of string type.
    static bool hasStringParameter(inp_Keyword const& keyword, cow_String const& name);
    // Marks the keyword for removal after the stage: key 0, nothing in it.
    static void blank(inp_Keyword& keyword) { keyword = inp_Keyword(); }

    // The fields, in the order of the stage's data model.
    bool m_resultsFormatOdb = true;
    cow_List<atr_String> m_deferredAssemblyErrors;
    bool m_featureEnhanced = false;
    bool m_elementFileParameter = false;
    bool m_explicitJob = false;
    bool m_hasRigidSurfaceKeyword = false;
    bool m_hasNmapBlended = false;
    bool m_parameterized = false;
    bool m_bulkConversion = true;
    int m_stepCounter = 0;
    int m_numberRestartSteps = 0;
    int m_assemblyCount = 0;
    cow_String m_includePath;
    cow_List<cow_String> m_partNames;      // newest first
    cow_List<cow_String> m_instanceNames;  // of the current assembly, newest first
    cow_List<cow_String> m_stepNames;
    // The same names for the lookups: a deck may hold many thousand
    // instances, and a scan of the list for each would be quadratic.
    std::unordered_set<cow_String> m_knownPartNames;
    std::unordered_set<cow_String> m_knownInstanceNames;
    std::unordered_set<cow_String> m_knownStepNames;
    cow_List<cow_String> m_includedFiles;
    inpM_InstanceMap<cow_String> m_instancePartNames;
    cow_Map<cow_String, cow_String> m_instancePartCopy;
    cow_List<cow_String> m_missingIncludedFiles;

    // Scratch of the generic handler, kept to reuse its storage from keyword
    // to keyword.
    std::vector<MatchedParameter> m_matched;
};
