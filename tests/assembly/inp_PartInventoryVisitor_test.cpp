#include "assembly/inp_PartInventoryVisitor.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "mesh/inp_ElementVisitor.h"
#include "tests/mesh/InlineDeck.h"

namespace {

using Texts = std::vector<std::string>;

// The flat keyword list of an inline deck as the organizer leaves it: the
// keywords of a *PART, *ASSEMBLY or *INSTANCE are its suboptions, and each
// end keyword stands beside its opener.
cow_List<inp_Keyword> Organized(cow_List<inp_Keyword> const& flat) {
    std::vector<cow_List<inp_Keyword>> levels(1);
    std::vector<inp_Keyword> openers;
    auto closes = [](inp_Keyword const& opener, inp_Keyword const& keyword) {
        return (opener.Is(inp_kw_Part) && keyword.Is(inp_kw_EndPart)) ||
               (opener.Is(inp_kw_Instance) && keyword.Is(inp_kw_EndInstance)) ||
               (opener.Is(inp_kw_Assembly) && keyword.Is(inp_kw_EndAssembly));
    };
    for (inp_Keyword const& keyword : flat) {
        if (!openers.empty() && closes(openers.back(), keyword)) {
            inp_Keyword opener = openers.back();
            opener.SetSuboptions(levels.back());
            openers.pop_back();
            levels.pop_back();
            levels.back().Append(opener);
        }
        if (keyword.Is(inp_kw_Part) || keyword.Is(inp_kw_Instance) || keyword.Is(inp_kw_Assembly)) {
            openers.push_back(keyword);
            levels.emplace_back();
        } else {
            levels.back().Append(keyword);
        }
    }
    while (!openers.empty()) {  // an opener left open keeps what followed it
        inp_Keyword opener = openers.back();
        opener.SetSuboptions(levels.back());
        openers.pop_back();
        levels.pop_back();
        levels.back().Append(opener);
    }
    return levels.back();
}

// A deck with its element maps: those of the parts as the element visitor
// reads them, and those of each instance a copy of its part's.
struct Model {
    explicit Model(std::string const& text) : flat(InlineDeck(text)), keywords(Organized(flat)) {
        inp_ElementVisitor elements(true);
        elements.VisitList(flat);
        EXPECT_EQ(TextsOf(elements.GetErrorList()), Texts{}) << "the deck itself is sound";
        partElements = elements.ConstGetElementMap();
        partElsets = elements.ConstGetSetMap();
        for (inp_Keyword const& keyword : flat) {
            if (!keyword.Is(inp_kw_Instance)) continue;
            cow_String const name = keyword.GetParameterAsString("name", "");
            cow_String const part = keyword.GetParameterAsString("part", "");
            if (partElements.IsMember(part))
                instanceElements.Insert(name, partElements.ConstGetMap(part).ConstGet());
            if (partElsets.HasInstance(part))
                instanceElsets.InsertNestedSetMap(name, partElsets.ConstGetNestedSetMap(part));
        }
    }
    inp_PartInventoryVisitor Inventory() const {
        return inp_PartInventoryVisitor(partElements, instanceElements, partElsets, instanceElsets);
    }
    // What the stage does with a parts deck.
    void Check() {
        inp_PartInventoryVisitor inventory = Inventory();
        inventory.VisitList(keywords);
        inventory.CheckViolations();
        inventory.CheckOutOfPlace(keywords);
        errors = TextsOf(inventory.GetErrorList());
        warnings = TextsOf(inventory.GetWarningList());
    }

    cow_List<inp_Keyword> flat;
    cow_List<inp_Keyword> keywords;
    inpM_InstanceMap<inp_MapInt2Element> partElements, instanceElements;
    inpM_SetMap partElsets, instanceElsets;
    Texts errors, warnings;
};

std::string at(char const* keyword, int line) {
    return "in keyword *" + std::string(keyword) + ", file \"deck.inp\", line " +
           std::to_string(line) + ": ";
}

// A sound part of solids and a sound rigid part with its analytical surface
// and rigid body; the decks of the tests add a fault after it (from line 13).
std::string const kSoundParts = R"(*PART, NAME=SOLID
*ELEMENT, TYPE=C3D8R, ELSET=ALL
1, 1, 2, 3, 4, 5, 6, 7, 8
*ELEMENT, TYPE=MASS
2, 1
*RIGID BODY, REF NODE=1, ELSET=ALL
*END PART
*PART, NAME=WALL
*SURFACE, TYPE=CYLINDER, NAME=S
*RIGID BODY, REF NODE=1, ANALYTICAL SURFACE=S
*END PART
**
)";

std::string const kRigidSurfaceRule =
    "*RIGID SURFACE can be used in a parts & assembly input file only if all the following "
    "requirements are met: (a) Both the TYPE and ELSET parameters are used; (b) The ELSET "
    "contains IRS or drag chain elements; and (c) The *RIGID SURFACE option is inside the same "
    "part/instance as the elements in the ELSET.";

}  // namespace

TEST(PartInventory, SoundPartsPassAndPointElementsAreForgiven) {
    Model model(kSoundParts + R"(*PART, NAME=POINTS
*ELEMENT, TYPE=MASS, ELSET=M
1, 1
*ELSET, ELSET=NONE
*RIGID BODY, REF NODE=1, ELSET=NONE
*END PART
)");
    model.Check();
    EXPECT_EQ(model.errors, Texts{});
    EXPECT_EQ(model.warnings, Texts{});
}

TEST(PartInventory, ContentRulesOfAPart) {
    Model model(kSoundParts + R"(*PART, NAME=MIXED
*ELEMENT, TYPE=R3D4, ELSET=R
1, 1, 2, 3, 4
*ELEMENT, TYPE=C3D8R
2, 1, 2, 3, 4, 5, 6, 7, 8
*RIGID BODY, REF NODE=1, ELSET=R
*SURFACE, TYPE=CYLINDER, NAME=A
*SURFACE, TYPE=SEGMENTS, NAME=B
*RIGID BODY, REF NODE=1, ANALYTICAL SURFACE=A
*RIGID BODY, REF NODE=1, ANALYTICAL SURFACE=C
*END PART
)");
    model.Check();
    std::string const part = at("PART", 13);
    EXPECT_EQ(model.errors,
              (Texts{at("RIGIDBODY", 18) +
                         "If a part contains a rigid body definition, all elements in the part "
                         "must belong to the element set given on the *RIGID BODY option. A "
                         "part-level rigid body that refers to only some of the elements within "
                         "the part is not allowed. This rule is violated by part MIXED",
                     part + "Rigid elements, deformable elements, connectors and analytical "
                            "surfaces cannot be combined within a part. This rule is violated by "
                            "part MIXED",
                     part + "Only one analytical surface is allowed per part. This rule is "
                            "violated by part MIXED"}));
    EXPECT_EQ(model.warnings,
              (Texts{part + "*SURFACE keyword defining analytical rigid surface B of part MIXED "
                            "is not associated with a rigid body definition.",
                     part + "Analytical rigid surface C of part MIXED is not defined, but is "
                            "referenced by a rigid body definition."}));
}

TEST(PartInventory, RigidSurfaceNeedsIrsOrDragElementsOfItsOwnPartOrInstance) {
    Model model(kSoundParts + R"(*PART, NAME=IRS
*ELEMENT, TYPE=IRS21A, ELSET=GOOD
1, 1, 2, 3
*ELEMENT, TYPE=DRAG2D, ELSET=GOOD
3, 1
*ELEMENT, TYPE=T3D2, ELSET=TRUSS
2, 1, 2
*ELSET, ELSET=STRAY
1, 99
*RIGID SURFACE, TYPE=SEGMENTS, ELSET=GOOD
*RIGID SURFACE, TYPE=SEGMENTS, ELSET=TRUSS
*RIGID SURFACE, TYPE=SEGMENTS, ELSET=STRAY
*RIGID SURFACE, TYPE=SEGMENTS, ELSET=NOWHERE
*RIGID SURFACE, ELSET=GOOD
*END PART
*RIGID SURFACE, TYPE=SEGMENTS, ELSET=GOOD
*ASSEMBLY, NAME=A
*INSTANCE, NAME=I, PART=IRS
*RIGID SURFACE, TYPE=SEGMENTS, ELSET=GOOD
*RIGID SURFACE, TYPE=SEGMENTS, ELSET=VOID
*RIGID SURFACE, TYPE=SEGMENTS, ELSET=OTHER
*END INSTANCE
*END ASSEMBLY
)");
    model.instanceElsets.InsertNestedSet("I", "VOID", CreateSet(false, false));
    model.Check();
    EXPECT_EQ(model.errors,
              (Texts{at("RIGIDSURFACE", 23) + kRigidSurfaceRule,
                     at("RIGIDSURFACE", 24) +
                         "Unknown element ID 99 is detected in the elset referenced by the "
                         "*RIGID SURFACE option. This takes place during the processing of part "
                         "IRS",
                     at("RIGIDSURFACE", 25) +
                         "The elset NOWHERE, which is referenced by a *RIGID SURFACE, is not "
                         "defined in part: IRS",
                     at("RIGIDSURFACE", 26) + kRigidSurfaceRule,
                     at("RIGIDSURFACE", 28) + kRigidSurfaceRule,
                     at("RIGIDSURFACE", 32) +
                         "The elset VOID, which is referenced by a *RIGID SURFACE, is empty. This "
                         "is detected during the processing of part I",
                     at("RIGIDSURFACE", 33) +
                         "The elset OTHER, which is referenced by a *RIGID SURFACE, is not "
                         "defined in instance: I"}));
    EXPECT_EQ(model.warnings, Texts{});
}

TEST(PartInventory, AnalyticalSurfacesTiedAcrossPartInstanceAndAssembly) {
    Model model(kSoundParts + R"(*PART, NAME=PLAIN
*SURFACE, TYPE=CYLINDER, NAME=PS
*END PART
*PART, NAME=EMPTY
*END PART
*ASSEMBLY, NAME=ASM
*INSTANCE, NAME=P1, PART=PLAIN
*END INSTANCE
*INSTANCE, NAME=E1, PART=EMPTY
*SURFACE, TYPE=CYLINDER, NAME=IS
*RIGID BODY, REF NODE=1, ANALYTICAL SURFACE=IS
*RIGID BODY, REF NODE=1, ANALYTICAL SURFACE=IS
*SURFACE, TYPE=CYLINDER, NAME=LONE
*RIGID BODY, REF NODE=1, ANALYTICAL SURFACE=GHOST
*END INSTANCE
*INSTANCE, NAME=W1, PART=WALL
*RIGID BODY, REF NODE=1, ANALYTICAL SURFACE=S
*END INSTANCE
*INSTANCE, NAME=S1, PART=SOLID
*END INSTANCE
*SURFACE, TYPE=CYLINDER, NAME=ASURF
*RIGID BODY, REF NODE=1, ANALYTICAL SURFACE=P1.PS
*RIGID BODY, REF NODE=1, ANALYTICAL SURFACE=P1.PS
*RIGID BODY, REF NODE=1, ANALYTICAL SURFACE=ASURF
*RIGID BODY, REF NODE=1, ANALYTICAL SURFACE=E1.NONE
*RIGID BODY, REF NODE=1, ANALYTICAL SURFACE=E1.IS
*RIGID BODY, REF NODE=S1.1, ELSET=S1.ALL
*RIGID BODY, REF NODE=P1.1, ELSET=P1.X
*END ASSEMBLY
)");
    inp_PartInventoryVisitor inventory = model.Inventory();
    EXPECT_EQ(inventory.InventoryAssemblyName(), "ASSEMBLY");
    inventory.VisitList(model.keywords);
    EXPECT_EQ(inventory.InventoryAssemblyName(), "ASM");
    // An unscoped name is no entry of the assembly table.
    EXPECT_FALSE(inventory.AssemblySurfaces().IsMember("ASURF"));
    inventory.CheckViolations();
    inventory.CheckOutOfPlace(model.keywords);
    // The assembly-level reference settles the surface of the instance's part.
    EXPECT_EQ(inventory.PartTable().ConstGet("PLAIN").analyticalSurfaces.ConstGet("PS"),
              inp_PartInventoryVisitor::kSurfaceTied);
    EXPECT_TRUE(inventory.InstanceSurfaces().IsEmpty() && inventory.AssemblySurfaces().IsEmpty());
    std::string const rigidPart =
        "A part that contains a rigid body definition (part: SOLID) cannot be referenced by an "
        "assembly-level rigid body definition. ";
    EXPECT_EQ(TextsOf(inventory.GetErrorList()),
              (Texts{at("SURFACE", 33) +
                         "Analytical rigid surface ASURF was defined at the assembly level. "
                         "Analytical rigid surfaces can only be defined within a part or part "
                         "instance.",
                     at("RIGIDBODY", 39) + rigidPart, at("RIGIDBODY", 39) + rigidPart}));
    auto multiple = [](char const* surface, char const* instance) {
        return "Analytical rigid surface " + std::string(surface) + " of part instance " +
               instance +
               " is referenced by multiple rigid bodies. A part instance may contain only one "
               "analytical rigid surface and it is permitted to be referenced by only one rigid "
               "body definition.";
    };
    std::string const e1 = at("INSTANCE", 21);
    EXPECT_EQ(
        TextsOf(inventory.GetWarningList()),
        (Texts{at("RIGIDBODY", 24) + multiple("IS", "E1"),
               at("RIGIDBODY", 35) + multiple("PS", "P1"),
               at("RIGIDBODY", 36) +
                   "An assembly level rigid body definition references an assembly level "
                   "analytical rigid surface (ASURF). Analytical rigid surfaces must be defined "
                   "at the part or part instance levels.",
               e1 + multiple("IS", "E1"),
               e1 + "Analytical rigid surface GHOST of part instance E1 is not defined, but is "
                    "referenced by a rigid body definition.",
               e1 + "*SURFACE keyword defining analytical rigid surface LONE of part instance E1 "
                    "is not associated with a rigid body definition.",
               at("INSTANCE", 28) +
                   "If a rigid body definition is defined at the part or part instance level, the "
                   "corresponding analytical rigid surface definition must be defined at the same "
                   "level. Analytical rigid surface S violates this rule with regard to part WALL "
                   "and part instance W1.",
               e1 + "Analytical rigid surface IS of part instance E1 is not defined, but is "
                    "referenced by a rigid body definition at the assembly level.",
               e1 + "Analytical rigid surface NONE of part instance E1 is not defined, but is "
                    "referenced by a rigid body definition at the assembly level."}));
}

TEST(PartInventory, NodeAndElementDataStandInThePartOrItsInstancesOnly) {
    // The model a flat deck becomes: one generated part, one instance of it.
    Model generated(R"(*PART, NAME=PART-1
*NODE
1, 0, 0, 0
*ELEMENT, TYPE=T3D2
1, 1, 1
*END PART
*ASSEMBLY, NAME=ASSEMBLY-1
*INSTANCE, NAME=PART-1-1, PART=PART-1
*END INSTANCE
*END ASSEMBLY
)");
    inp_PartInventoryVisitor flat = generated.Inventory();
    flat.CheckOutOfPlace(generated.keywords);
    EXPECT_FALSE(flat.IsError() || flat.IsWarning());
    generated.Check();
    EXPECT_EQ(generated.errors, Texts{});

    // Two offenders (and a sound instance of a part without data) give one
    // line: the pair map is keyed by the keyword's table name.
    Model twice(R"(*PART, NAME=P
*NODE
1, 0, 0, 0
*END PART
*PART, NAME=Q
*NGEN
*END PART
*PART, NAME=R
*END PART
*ASSEMBLY, NAME=A
*INSTANCE, NAME=IP, PART=P
*NODE
1, 0, 0, 0
*END INSTANCE
*INSTANCE, NAME=IQ, PART=Q
*ELGEN
*END INSTANCE
*INSTANCE, NAME=IR, PART=R
*NODE
1, 0, 0, 0
*END INSTANCE
*END ASSEMBLY
)");
    inp_PartInventoryVisitor inventory = twice.Inventory();
    inventory.CheckOutOfPlace(twice.keywords);
    EXPECT_EQ(TextsOf(inventory.GetErrorList()),
              Texts{at("ASSEMBLY", 10) +
                    "Node and element data may only be defined in the instance or the part, not "
                    "both.  The following instance/part pairs attempt to do so:\n Instance: "
                    "instance Part:Q"});

    // An instance with data but without its part has nothing to pair with:
    // it is passed over, and the walk goes on.
    cow_List<inp_Keyword> broken = twice.keywords;
    broken.Get(6).GetSuboptions().Get(0).RemoveParameter("part");
    inp_PartInventoryVisitor withoutPart = twice.Inventory();
    EXPECT_NO_THROW(withoutPart.CheckOutOfPlace(broken));
}

TEST(PartInventory, OpenersWithoutTheirClosingKeyword) {
    // Flat as read: a missing close is seen at the keyword after the opener;
    // one without a name is reported under the name before it; the last
    // keyword of the list is never judged.
    cow_List<inp_Keyword> const keywords = InlineDeck(R"(*PART, NAME=X
*PART, NAME=Y
*END PART
*PART
*NODE
*PART, NAME=Z
)");
    inp_PartInventoryVisitor inventory = Model("").Inventory();
    inventory.CheckOutOfPlace(keywords);
    EXPECT_EQ(
        TextsOf(inventory.GetErrorList()),
        Texts{at("PART", 1) + "The following *PART keywords are missing their closing END PART "
                              "keywords\n    X, Y"});
    inp_PartInventoryVisitor last = Model("").Inventory();
    last.CheckOutOfPlace(InlineDeck("*PART, NAME=Z\n*END PART\n*PART, NAME=LAST\n"));
    EXPECT_FALSE(last.IsError());
}
