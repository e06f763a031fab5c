// The handlers that look at a value beyond their schema row, driven through
// small decks parsed as the pipeline parses them.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ExpandedDeck.h"

namespace {

inp_Item const& itemOf(inp_Keyword const& keyword, char const* name) {
    return keyword.Parameters().ConstGet(name);
}

using ValueKeywords = ExpandedDeck;

std::string const kNoDataLine = "Required values need to be specified on the dataline.";

std::string backstressRange(char const* value) {
    return std::string(
               "The parameter NUMBER BACKSTRESSES on the option *PLASTIC must have value "
               "larger than 0 and smaller than or equal to 10. The value specified is ") +
           value + ".";
}

}  // namespace

// -- materials --------------------------------------------------------------------------------

TEST_F(ValueKeywords, PlasticNeedsADataLineUnlessUserHardeningDeclaresNoProperties) {
    expand(
        "*PLASTIC\n*PLASTIC, HARDENING=USER, PROPERTIES=0\n*PLASTIC, HARDENING=U, PROPERTIES=3\n"
        "*PLASTIC, HARDENING=USER\n*PLASTIC, HARDENING=KIN\n200., 0.\n");
    EXPECT_EQ(itemOf(keywords[2], "hardening").AsString(), cow_String("USER"));
    EXPECT_EQ(errors(), (Messages{at("PLASTIC", 1) + kNoDataLine, at("PLASTIC", 3) + kNoDataLine}));
}

TEST_F(ValueKeywords, PlasticBackstressesRangeFromOneToTenAndTheMessageQuotesTheValue) {
    expand(
        "*PLASTIC, NUMBER BACKSTRESSES=10\n1.\n*PLASTIC, NUMBER BACKSTRESSES=11\n1.\n"
        "*PLASTIC, NUMBER BACKSTRESSES=0\n1.\n*PLASTIC, NUMBER BACKSTRESSES=2.5\n1.\n");
    EXPECT_TRUE(errors().empty());
    EXPECT_EQ(fatalErrors(), (Messages{at("PLASTIC", 3) + backstressRange("11"),
                                       at("PLASTIC", 5) + backstressRange("0"),
                                       at("PLASTIC", 7) + backstressRange("2.5")}));
}

TEST_F(ValueKeywords, InitialBackstressesNeedHardeningAndShareTheRangeOfPlastic) {
    expand(
        "*INITIAL CONDITIONS, NUMBER BACKSTRESSES=11\n"
        "*INITIAL CONDITIONS, TYPE=HARD, NUMBER BACKSTRESSES=3\n"
        "*INITIAL CONDITIONS, TYPE=STRESS, NUMBER BACKSTRESSES=3\n");
    std::string const pairing =
        "The parameter NUMBER BACKSTRESSES must be used in conjunction with the parameter "
        "TYPE=HARDENING.";
    EXPECT_EQ(errors(), (Messages{at("INITIALCONDITIONS", 1) + pairing,
                                  at("INITIALCONDITIONS", 3) + pairing}));
    EXPECT_EQ(fatalErrors(), Messages{at("INITIALCONDITIONS", 1) + backstressRange("11")});
}

TEST_F(ValueKeywords, PermeabilityNeedsSpecificOnlyForIsotropicAndOrthotropicTypes) {
    expand(
        "*PERMEABILITY\n*PERMEABILITY, TYPE=ORTHO\n*PERMEABILITY, TYPE=SAT\n"
        "*PERMEABILITY, SPECIFIC=1.\n");
    std::string const required = "Parameter SPECIFIC is a required parameter.";
    EXPECT_EQ(errors(),
              (Messages{at("PERMEABILITY", 1) + required, at("PERMEABILITY", 2) + required}));
}

// -- contact ----------------------------------------------------------------------------------

TEST_F(ValueKeywords, ContactPairAdjustBecomesABooleanOnlyForYesOrNo) {
    expand(
        "*CONTACT PAIR, ADJUST=Y\n*CONTACT PAIR, ADJUST=0.1\n*CONTACT PAIR, ADJUST=NSETA\n"
        "*CONTACT PAIR, ADJUST=N\n*CONTACT PAIR, ADJUST\n*CONTACT PAIR, ADJUST=no\n");
    inp_Item const& yes = itemOf(keywords[0], "adjust");
    EXPECT_TRUE(yes.Type() == inp_Types::inp_BOOLEAN && yes.AsBool());
    EXPECT_EQ(itemOf(keywords[1], "adjust").Type(), inp_Types::inp_REAL);
    EXPECT_EQ(itemOf(keywords[2], "adjust").AsString(), cow_String("NSETA"));
    for (int i : {3, 5}) {
        inp_Item const& no = itemOf(keywords[i], "adjust");
        EXPECT_TRUE(no.Type() == inp_Types::inp_BOOLEAN && !no.AsBool()) << i;
    }
    EXPECT_TRUE(itemOf(keywords[4], "adjust").AsBool());  // bare: stays a true boolean
    EXPECT_TRUE(errors().empty());
}

TEST_F(ValueKeywords, ContactInclusionsRefuseABareAllButTakeAllExterior) {
    expand(
        "*CONTACT INCLUSIONS, ALL\n*CONTACT INCLUSIONS, ALL EXTERIOR\n"
        "*CONTACT INCLUSIONS, ALLE\n*CONTACT INCLUSIONS, A\n");
    EXPECT_EQ(keywords[0].Keyword(), inp_kw_UndefinedKeyword);
    EXPECT_TRUE(keywords[1].HasParameter("allexterior"));
    EXPECT_TRUE(keywords[2].HasParameter("allelementbased"));
    EXPECT_EQ(keywords[3].Keyword(), inp_kw_UndefinedKeyword);
    std::string const refused = "The parameter ALL EXTERIOR cannot be abbreviated to ALL.";
    EXPECT_EQ(errors(), (Messages{at("CONTACTINCLUSIONS", 1) + refused,
                                  at("CONTACTINCLUSIONS", 4) + refused}));
}

// -- connectors and constraints ---------------------------------------------------------------

TEST_F(ValueKeywords, ConnectorSectionExpandsItsConnectionTypesBeforeItsParameters) {
    expand(
        "*CONNECTOR SECTION, ELSET=C, X=1\nHIN, TRANS, SLOT\n"
        "*CONNECTOR SECTION, ELSET=D\n, CART\n*CONNECTOR SECTION, ELSET=E\nRO, ROTATIONX\n");
    inp_DataArray const& first = keywords[0].Data();
    EXPECT_EQ(first.AsString(0, 0), cow_String("HINGE"));
    EXPECT_EQ(first.AsString(0, 1), cow_String("TRANSLATOR"));
    EXPECT_EQ(first.AsString(0, 2), cow_String("SLOT"));  // a third item is no connection type
    EXPECT_TRUE(keywords[1].Data().IsNone(0, 0));
    EXPECT_EQ(keywords[1].Data().AsString(0, 1), cow_String("CARTESIAN"));
    EXPECT_EQ(errors(),
              (Messages{at("CONNECTORSECTION", 1) + "Unknown parameter: x. The parameter may be "
                                                    "misspelled, obsolete, or invalid.",
                        at("CONNECTORSECTION", 5) + "Ambiguous value \"RO\" for data item under "
                                                    "keyword \"CONNECTORSECTION\".",
                        at("CONNECTORSECTION", 5) + "Illegal value \"ROTATIONX\" for data item "
                                                    "under keyword \"CONNECTORSECTION\"."}));
}

TEST_F(ValueKeywords, ConnectorSectionReportsItsDataBeforeItsParameters) {
    expand("*CONNECTOR SECTION, X=1\nNOTATYPE\n");
    EXPECT_EQ(
        errors(),
        (Messages{at("CONNECTORSECTION", 1) + "Illegal value \"NOTATYPE\" for data item under "
                                              "keyword \"CONNECTORSECTION\".",
                  at("CONNECTORSECTION", 1) + "Unknown parameter: x. The parameter may be "
                                              "misspelled, obsolete, or invalid."}));
}

TEST_F(ValueKeywords, RigidBodyNeedsAReferenceNodeWithAValueAndSomethingToMakeRigid) {
    expand(
        "*RIGID BODY, REFNODE, ANALYTICAL SURFACE\n*RIGID BODY, PIN NSET=P\n"
        "*RIGID BODY, REFNODE=1, ELSET=E\n");
    EXPECT_EQ(errors(),
              (Messages{at("RIGIDBODY", 1) + "Parameter REFNODE requires a value.",
                        at("RIGIDBODY", 1) + "Parameter ANALYTICALSURFACE requires a value.",
                        at("RIGIDBODY", 2) + "Parameter REFNODE is a required parameter."}));

    inp_KeywordExpansionVisitor bare;
    inp_Keyword nothingRigid(inp_kw_RigidBody);
    nothingRigid.SetParameter("refnode", inp_Item("1"));
    bare.Visit(nothingRigid);
    EXPECT_EQ(texts(bare.GetErrorList()),
              Messages{"in keyword *RIGIDBODY At least one of the parameters - analytical surface, "
                       "elset, pinnset, tienset is required."});
}

TEST_F(ValueKeywords, CouplingChecksItsRequiredParametersInOrderAndABareOrientation) {
    expand(
        "*COUPLING, SURFACE=S, ORIENTATION\n*COUPLING, CONSTRAINT NAME=C, REF NODE=1, SURFACE=S\n");
    EXPECT_EQ(errors(),
              (Messages{at("COUPLING", 1) + "Parameter CONSTRAINTNAME is a required parameter.",
                        at("COUPLING", 1) + "Parameter REFNODE is a required parameter.",
                        at("COUPLING", 1) + "Parameter ORIENTATION requires a value."}));
}
