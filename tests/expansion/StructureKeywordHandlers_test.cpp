// The handlers of the structure keywords, driven through small decks: the
// deck is parsed as the pipeline parses it and the expansion walks it.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ExpandedDeck.h"

namespace {

std::string valueOf(inp_Keyword const& keyword, char const* name) {
    inp_Item const* item = keyword.Parameters().Find(name);
    return item ? std::string(item->AsString().View()) : "<absent>";
}

using StructureKeywords = ExpandedDeck;

std::string const kUnknownX =
    "Unknown parameter: x. The parameter may be misspelled, obsolete, or invalid.";

}  // namespace

// -- steps and restarts --------------------------------------------------------------------

TEST_F(StructureKeywords, UnnamedStepsCountFromOneAndNamesKeepTheirCase) {
    expand("*STEP\n*STEP, NAME=Load up\n*STEP\n");
    EXPECT_EQ(valueOf(keywords[0], "name"), "Step-1");
    EXPECT_EQ(valueOf(keywords[1], "name"), "Loadup");
    EXPECT_EQ(valueOf(keywords[2], "name"), "Step-3");
    EXPECT_EQ(visitor.StepName(), cow_String("Step-3"));
    EXPECT_TRUE(errors().empty());
}

TEST_F(StructureKeywords, ARestartReadSetsTheCounterUnderItsExactNamesOnly) {
    expand("*RESTART, READ, STEP=3\n*STEP\n*STEP\n");
    EXPECT_EQ(valueOf(keywords[1], "name"), "Step-4");
    EXPECT_EQ(valueOf(keywords[2], "name"), "Step-5");

    inp_KeywordExpansionVisitor fromJob;
    fromJob.SetNumberRestartSteps(7);
    cow_List<inp_Keyword> restarted = expandWith(fromJob, "r.inp", "*RESTART, READ\n*STEP\n");
    EXPECT_EQ(valueOf(restarted[1], "name"), "Step-8");

    inp_KeywordExpansionVisitor abbreviated;
    cow_List<inp_Keyword> passedOver =
        expandWith(abbreviated, "a.inp", "*RESTART, READ, ST=3\n*STEP\n");
    EXPECT_EQ(valueOf(passedOver[0], "step"), "3");  // expanded, but after the offset was read
    EXPECT_EQ(valueOf(passedOver[1], "name"), "Step-1");
}

TEST_F(StructureKeywords, ARestartStepOrIncThatIsNoIntegerIsAnError) {
    expand("*RESTART, READ, STEP=X, INC=2.5\n*STEP\n");
    EXPECT_EQ(errors(), (Messages{at("RESTART", 1) + "step parameter must be an integer",
                                  at("RESTART", 1) + "inc parameter must be an integer"}));
    EXPECT_EQ(valueOf(keywords[1], "name"), "Step-1");
}

TEST_F(StructureKeywords, ADuplicateStepNameIsMadeUniqueWithOneErrorAtTheFront) {
    expand("*HEADING, X=1\n*STEP, NAME=A\n*STEP, NAME=A\n*STEP\n");
    EXPECT_EQ(valueOf(keywords[1], "name"), "A");
    EXPECT_EQ(valueOf(keywords[2], "name"), "A-Duplicate-2");
    EXPECT_EQ(valueOf(keywords[3], "name"), "Step-3");
    EXPECT_EQ(errors(),
              (Messages{at("STEP", 3) + "Step with the name \"A\" has already been defined.",
                        at("HEADING", 1) + kUnknownX}));
}

// -- parts, the assembly and its instances
// ----------------------------------------------------------

TEST_F(StructureKeywords, AnInstanceAboveItsPartIsAnErrorButItsPairIsRecorded) {
    expand("*INSTANCE, NAME=I, PART=P\n*PART, NAME=P\n");
    EXPECT_EQ(errors(),
              Messages{at("INSTANCE", 1) + "Part with the name \"P\" has not been defined."});
    EXPECT_EQ(visitor.ConstGetInstancePartNames().ConstGet(cow_String("I")), cow_String("P"));
    EXPECT_TRUE(visitor.FeatureEnhanced());
}

TEST_F(StructureKeywords, InstanceNamesAreUniquePerAssemblyAndASecondAssemblyIsAnError) {
    expand(
        "*PART, NAME=P\n*PART, NAME=Q\n"
        "*ASSEMBLY, NAME=A\n*INSTANCE, NAME=I, PART=P\n*INSTANCE, NAME=I, PART=Q\n"
        "*ASSEMBLY, NAME=B\n*INSTANCE, NAME=I, PART=P\n");
    EXPECT_EQ(errors(),
              (Messages{at("INSTANCE", 5) +
                            "Instance with the name \"I\" already exists in the assembly.",
                        at("ASSEMBLY", 6) + "Only one assembly can be defined in a model."}));
    // The duplicate overwrites the pair, and the next assembly maps it anew.
    EXPECT_EQ(visitor.ConstGetInstancePartNames().ConstGet(cow_String("I")), cow_String("P"));
}

TEST_F(StructureKeywords, DuplicateMessagesComeOutAheadOfEarlierErrorsNewestFirst) {
    expand("*HEADING, X=1\n*PART, NAME=P\n*PART, NAME=P\n*INSTANCE, NAME=I, PART=Z\n");
    EXPECT_EQ(
        errors(),
        (Messages{at("INSTANCE", 4) + "Part with the name \"Z\" has not been defined.",
                  at("PART", 3) + "Part with the name \"P\" has already been defined in the model.",
                  at("HEADING", 1) + kUnknownX}));
}

TEST_F(StructureKeywords, PartsAndInstancesWithoutUsableNamesAreFatal) {
    expand(
        "*PART\n*PART, NAME=5\n*INSTANCE\n*INSTANCE, NAME=I\n*INSTANCE, PART=P\n"
        "*INSTANCE, INSTANCE=J, NAME=K\n*INSTANCE, INSTANCE=J\n*ASSEMBLY\n");
    EXPECT_EQ(fatalErrors(), (Messages{at("PART", 1) + "Part must have a name.",
                                       at("PART", 2) + "Part was not assigned a valid name.",
                                       at("INSTANCE", 3) + "Instance must have a name",
                                       at("INSTANCE", 3) + "Instance must refer to a part. ",
                                       at("INSTANCE", 4) + "Instance must refer to a part. ",
                                       at("INSTANCE", 5) + "Instance must have a name",
                                       at("ASSEMBLY", 8) + "The NAME parameter is required."}));
    EXPECT_EQ(errors(),
              Messages{at("INSTANCE", 6) + "Instance name should not be given in the case "
                                           "the instance is to be imported"});
    EXPECT_TRUE(visitor.ConstGetInstancePartNames().ConstGetInstanceMap().IsEmpty());
}

TEST_F(StructureKeywords, EndPartIsMisplacedOnlyInAFlatDeck) {
    expand("*END PART\n*PART, NAME=P\n*END PART\n");
    EXPECT_EQ(errors(), Messages{at("ENDPART", 1) +
                                 "Misplaced keyword: No matching *Part keyword has been defined."});
}

// -- the assembly-model rule
// ----------------------------------------------------------------------------

TEST_F(StructureKeywords, AFlatDeckKeepsItsConstructsAndALatePartReleasesThemBehindEarlierErrors) {
    expand("*NMAP, NSET=N, TYPE=BLENDED\n*HEADING, X=1\n*SUBSTRUCTURE COPY\n");
    EXPECT_TRUE(errors().size() == 1 && visitor.HasNmapBlended());

    inp_KeywordExpansionVisitor late;
    expandWith(late, "late.inp",
               "*NMAP, NSET=N, TYPE=SCALE\n*HEADING, X=1\n*SUBSTRUCTURE COPY\n*PART, NAME=P\n"
               "*MATRIX ASSEMBLE\n");
    std::string const where = std::string(", file \"") + dir.Path("late.inp").CStr() + "\", line ";
    std::string const refused =
        " is currently not supported in a model defined in terms of an assembly of part "
        "instances: ";
    EXPECT_EQ(texts(late.GetErrorList()),
              (Messages{"in keyword *HEADING" + where + "2: " + kUnknownX,
                        "in keyword *NMAP" + where + "1: The following option" + refused + "*NMAP",
                        "in keyword *SUBSTRUCTURECOPY" + where + "3: Option" + refused +
                            "*SUBSTRUCTURE COPY",
                        "in keyword *MATRIXASSEMBLE" + where + "5: The following option" + refused +
                            "*MATRIX ASSEMBLE"}));
    EXPECT_FALSE(late.HasNmapBlended());
}

TEST_F(StructureKeywords, ConditionalConstructsAreRefusedOnlyWhenTheirConditionHolds) {
    visitor.SetResultsFormatOdb(false);
    expand(
        "*PART, NAME=P\n*SYMMETRIC MODEL GENERATION\n"
        "*INITIAL CONDITIONS, TYPE=TEMP, FILE=x\n*INITIAL CONDITIONS, TYPE=VELOCITY, FILE=x\n"
        "*INITIAL CONDITIONS, TYPE=VELOCITY\n*ELASTIC, TYPE=SHORT\n*ELASTIC, TYPE=ISO\n"
        "*USER ELEMENT, FILE=u\n*DESIGN SHAPE VARIATION, FILE=d, PARAMETER=p\n");
    std::string const refused =
        " is currently not supported in a model defined in terms of an assembly of part instances";
    EXPECT_EQ(errors(),
              (Messages{at("INITIALCONDITIONS", 4) + "Option" + refused +
                            ": *INITIAL CONDITIONS, TYPE=VELOCITY, FILE=",
                        at("ELASTIC", 6) + "Type=SHORTFIBER (used for CMOLD)" + refused + ".",
                        at("USERELEMENT", 8) + "The following option" + refused +
                            ": *USER ELEMENT, FILE=",
                        at("DESIGNSHAPEVARIATION", 9) + "Option" + refused +
                            ": *PARAMETER SHAPE VARIATION, FILE="}));

    inp_KeywordExpansionVisitor odb;
    expandWith(odb, "odb.inp", "*PART, NAME=P\n*SYMMETRIC RESULTS TRANSFER\n");
    EXPECT_EQ(odb.GetErrorList().Length(), 1);
}

// -- the mesh ----------------------------------------------------------------------------------

TEST_F(StructureKeywords, NodesArePackedAndMalformedNodesCostOneErrorAndTheKeyword) {
    expand(
        "*NODE\n1, 0., 1., 2.\n*NODE, NSET=BAD\n1, x, 0.\n*ELEMENT, TYPE=T3D2, FILE=e\n1, 1, 2\n");
    EXPECT_EQ(keywords[0].Data().Cols(0), 7);
    EXPECT_DOUBLE_EQ(keywords[0].Data().AsDouble(0, 3), 2.0);
    EXPECT_EQ(keywords[1].Keyword(), inp_kw_UndefinedKeyword);
    ASSERT_EQ(errors().size(), 1u);
    EXPECT_EQ(errors()[0].rfind(at("NODE", 3), 0), 0u) << errors()[0];
    EXPECT_EQ(keywords[2].Data().Cols(0), 3);  // element data stay raw in this stage
    EXPECT_TRUE(visitor.IsElementFileParameter());
}

TEST_F(StructureKeywords, WithoutBulkConversionMalformedNodesKeepTheirLinesSilently) {
    visitor.SetBulkConversion(false);
    expand("*NODE\n1, x, 0.\n");
    ASSERT_EQ(keywords[0].Keyword(), inp_kw_Node);
    EXPECT_EQ(keywords[0].Data().Cols(0), 3);
    EXPECT_EQ(keywords[0].Data().AsStringVerbatim(0, 1), cow_String("x"));
    EXPECT_TRUE(errors().empty());
}

// -- required parameters ------------------------------------------------------------------------

TEST_F(StructureKeywords, AMissingRequiredParameterBlanksTheKeywordAndTheNextLineFailsToo) {
    expand(
        "*FASTENER, ELSET=E\n*SPOT WELD, PROPERTY=P\n*NSET\n1\n*SURFACE, REFNODE=5\n"
        "*CAPACITY, TYPE=5\n");
    for (int i = 0; i < 4; ++i) EXPECT_EQ(keywords[i].Keyword(), inp_kw_UndefinedKeyword) << i;
    EXPECT_EQ(keywords[4].Keyword(), inp_kw_Capacity);  // any value will do for TYPE
    EXPECT_EQ(errors(),
              (Messages{at("FASTENER", 1) + "The INTERACTIONNAME parameter is required.",
                        at("FASTENER", 1) + "The PROPERTY parameter is required.",
                        at("SPOTWELD", 2) + "The REFERENCENODESET parameter is required.",
                        at("NSET", 3) + "The NSET parameter is required.",
                        at("SURFACE", 5) + "The NAME parameter is required.",
                        at("CAPACITY", 6) + "Illegal value \"5\" for parameter \"type\".  "
                                            "The value may be misspelled, obsolete, or "
                                            "invalid."}));
}

TEST_F(StructureKeywords, SomeRequiredParametersAreFatalOrCheckedWithoutBlanking) {
    expand("*AMPLITUDE, NAME=5\n0., 1.\n*IMPORT, HOURGLASS\n*INTEGRATED OUTPUT SECTION, NAME=S\n");
    EXPECT_EQ(keywords[0].Keyword(), inp_kw_Amplitude);
    EXPECT_EQ(fatalErrors(), Messages{at("AMPLITUDE", 1) + "The NAME parameter is required."});
    EXPECT_EQ(keywords[1].Keyword(), inp_kw_Import);
    // The parser splices includes in; one that it left is taken apart here.
    inp_Keyword include(inp_kw_Include);
    include.SetParameter("password", inp_Item("x"));
    visitor.Visit(include);
    EXPECT_EQ(include.Keyword(), inp_kw_UndefinedKeyword);
    EXPECT_EQ(errors(), (Messages{at("IMPORT", 3) + "Parameter UPDATE is a required parameter.",
                                  at("INTEGRATEDOUTPUTSECTION", 4) +
                                      "Parameter SURFACE is a required parameter.",
                                  "in keyword *INCLUDE The \"input\" parameter is required."}));
    EXPECT_EQ(texts(visitor.GetWarningList()),
              Messages{at("IMPORT", 3) + "THE HOURGLASS PARAMETER HAS BEEN USED WITH *IMPORT. "
                                         "RESULTS SHOULD BE INTERPRETED WITH CAUTION."});
}

// -- names and the keywords of the model ---------------------------------------------------------

TEST_F(StructureKeywords, MaterialNamesPassOnAQuoteWhileOtherNamesAreLookedThroughIt) {
    expand(
        "*MATERIAL, NAME=\"1A\"\n*BOUNDARY, NAME=\"1A\"\n*MATERIAL, NAME=5\n*MATERIAL\n"
        "*BOUNDARY, NAME=\"B1\"\n*BOUNDARY\n*MATERIAL, NAME=Steel\n");
    std::string const tail = " name must be an alphanumeric string starting with an alphabet. ";
    EXPECT_EQ(errors(), (Messages{at("BOUNDARY", 2) + "The boundary" + tail,
                                  at("MATERIAL", 3) + "The material" + tail,
                                  at("MATERIAL", 4) + "The NAME parameter is required."}));
}

TEST_F(StructureKeywords, MatrixInputRecordsItsFileAndChecksItsNameBeforeItsValues) {
    expand("*MATRIX INPUT, NAME=1M, INPUT=k.mtx, TYPE=UNS\n*MATRIX INPUT, MATRIX=STIFF, TYPE=Q\n");
    EXPECT_EQ(valueOf(keywords[0], "input"), "k.mtx");
    EXPECT_EQ(valueOf(keywords[0], "type"), "UNSYMMETRIC");
    EXPECT_EQ(valueOf(keywords[1], "matrix"), "STIFFNESS");
    EXPECT_EQ(texts(visitor.GetIncludedFiles()), Messages{"k.mtx"});
    EXPECT_EQ(
        errors(),
        (Messages{at("MATRIXINPUT", 1) +
                      "The matrix name must be an alphanumeric string starting with an alphabet. ",
                  at("MATRIXINPUT", 2) + "The NAME parameter is required.",
                  at("MATRIXINPUT", 2) +
                      "The MATRIX parameter must be defined together with the INPUT parameter "
                      "for the matrix input from SIM. This paramener must not be specified in "
                      "other cases.",
                  at("MATRIXINPUT", 2) + "Illegal value \"Q\" for parameter \"type\".  The "
                                         "value may be misspelled, obsolete, or invalid."}));
}

TEST_F(StructureKeywords, ConflictsAndDisplayBodiesReportWithoutExpanding) {
    expand("*CONFLICTS, ANY=1\n*DISPLAY BODY, INSTANCE=5\n*DISPLAY BODY, INSTANCE=I\n");
    EXPECT_EQ(valueOf(keywords[0], "any"), "1");
    EXPECT_EQ(errors(), Messages{at("CONFLICTS", 1) +
                                 "Keyword *Conflicts is generated by Fenrik/Atelier to highlight "
                                 "changes made via the Keywords Editor that conflict with changes "
                                 "made subsequently via the native GUI."});
    EXPECT_EQ(fatalErrors(),
              Messages{at("DISPLAYBODY", 2) + "Instance parameter value is invalid or unset"});
}
