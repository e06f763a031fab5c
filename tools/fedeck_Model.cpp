#include "tools/fedeck_Model.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <vector>

#include "mesh/inp_CoordMap.h"
#include "mesh/inp_MapInt2Element.h"
#include "pipeline/inp_InputFile.h"
#include "pipeline/inp_ModelNames.h"
#include "support/aio_Stream.h"
#include "support/inpM_AssemblyInstanceSurface.h"
#include "support/inpM_InstanceMap.h"
#include "support/inpM_SetMap.h"
#include "support/inpM_Surface.h"
#include "support/inpM_SurfaceMap.h"
#include "tools/fedeck_Json.h"

namespace {

using ElementHolder = inpM_InstanceMap<inp_MapInt2Element>;

// The nested holders are looked up with Find, never with ConstGetMap: that
// one reports an unknown name as an error of the deck.
ElementHolder const* nestedElements(ElementHolder const& holder, cow_String const& name) {
    return holder.ConstGetInstanceMap().Find(name);
}

int ownElementCount(ElementHolder const& holder) {
    return holder.HasValue() ? holder.ConstGet().Size() : 0;
}

int elementCount(ElementHolder const& holder) {
    int count = ownElementCount(holder);
    holder.ConstGetInstanceMap().ForEachSorted(
        [&count](cow_String const&, ElementHolder const& nested) {
            count += elementCount(nested);
        });
    return count;
}

// The own level of the map plus each nested level.
int setNameCount(inpM_SetMap const& sets, bool withNestedLevels) {
    int count = sets.ConstGetSetMap().Size();
    if (withNestedLevels)
        sets.ConstGetInstanceMap().ForEachSorted(
            [&count](cow_String const&, inpM_SetMap const& nested) {
                count += nested.ConstGetSetMap().Size();
            });
    return count;
}

int surfaceNameCount(inpM_SurfaceMap const& surfaces, bool withNestedLevels) {
    int count = surfaces.ConstGetAssemblyInstanceSurfaceMap().Size();
    if (withNestedLevels)
        surfaces.ConstGetInstanceMap().ForEachSorted(
            [&count](cow_String const&, inpM_PartInstanceSurfaceMap const& level) {
                count += level.Size();
            });
    return count;
}

// Writes the comma between the members of one JSON array or object.
class Separator {
  public:
    explicit Separator(aio_ostream& out) : m_out(out) {}
    aio_ostream& Next() {
        if (!m_first) m_out.print(", ");
        m_first = false;
        return m_out;
    }

  private:
    aio_ostream& m_out;
    bool m_first = true;
};

class ModelWriter {
  public:
    ModelWriter(aio_ostream& out, inp_InputFile const& deck) : m_out(out), m_deck(deck) {}

    void Write() {
        m_out.print("\"partsAndAssembly\": ").print(m_deck.IsPartsAndAssembly() ? "true" : "false");
        m_out.print(", \"fakePartModel\": ").print(m_deck.IsFakePartModel() ? "true" : "false");
        m_out.print(", \"modelParameters\": ");
        writeModelParameters(m_deck.ModelParameters());
        m_out.print(", \"parts\": {");
        Separator parts(m_out);
        for (cow_String const& part : inp_PartNames(m_deck)) {
            key(parts, part);
            writePart(part);
        }
        m_out.print("}, \"assembly\": ");
        writeAssembly();
    }

  private:
    void flag(Separator& separator, char const* name, bool value) {
        separator.Next().print("\"").print(name).print("\": ").print(value ? "true" : "false");
    }
    void count(Separator& separator, char const* name, int value) {
        separator.Next().print("\"").print(name).print("\": ").print_int(value);
    }

    void writeModelParameters(inp_ModelParameters const& parameters) {
        m_out.print("{");
        Separator members(m_out);
        count(members, "numDepVars", parameters.getNumDepVars());
        count(members, "numTempPts", parameters.getNumTempPts());
        count(members, "numGaussPts", parameters.getNumGaussPts());
        flag(members, "symModelGen", parameters.isSymModelGen());
        flag(members, "temperatureElements", parameters.hasTemperatureElms());
        flag(members, "imported", parameters.isImported());
        flag(members, "staticGeneralStep", parameters.hasStaticGeneralStep());
        flag(members, "importedParts", parameters.hasImportedParts());
        flag(members, "featureEnhanced", parameters.isFeatureEnhanced());
        members.Next().print("\"tableSizes\": {");
        Separator tables(m_out);
        using Sorted = cow_ConstMapSortedIt<cow_String, int>;
        for (Sorted table(parameters.TableSizes(), Sorted::AscSortCmp); table.NotDone();
             table.Next()) {
            key(tables, table.CurrentKey());
            m_out.print_int(table.CurrentValue());
        }
        m_out.print("}");
        members.Next().print("\"rectangularSystems\": {");
        Separator systems(m_out);
        for (Sorted system(parameters.RectangularSystems(), Sorted::AscSortCmp); system.NotDone();
             system.Next()) {
            key(systems, system.CurrentKey());
            m_out.print(system.CurrentValue() != 0 ? "true" : "false");
        }
        m_out.print("}}");
    }

    void key(Separator& separator, cow_String const& name) {
        fedeck_WriteJsonString(separator.Next(), name.View());
        m_out.print(": ");
    }

    // Shortest text that reads back to the same double. JSON has no form
    // for infinities and NaN, so they are written as null.
    void number(double value) {
        if (!std::isfinite(value)) {
            m_out.print("null");
            return;
        }
        m_out.print_double(value);
    }

    void writePart(cow_String const& part) {
        m_out.print("{\"nodes\": ");
        writeNodes(m_deck.PartCoordMap().IsMember(part) ? &m_deck.PartCoordMap().ConstGet(part)
                                                        : nullptr);
        m_out.print(", \"elements\": ");
        writeElements(nestedElements(m_deck.PartElementMap(), part));
        writeLevelSetsAndSurfaces(m_deck.PartNsets(), m_deck.PartElsets(), m_deck.PartSurfaces(),
                                  part);
        m_out.put('}');
    }

    void writeAssembly() {
        m_out.print("{\"nodes\": ");
        writeNodes(&m_deck.AssemblyCoordMap());
        m_out.print(", \"elements\": ");
        writeElements(&m_deck.AssemblyElementMap());
        m_out.print(", \"instances\": {");
        Separator instances(m_out);
        for (cow_String const& instance : inp_InstanceNames(m_deck)) {
            key(instances, instance);
            writeInstance(instance);
        }
        m_out.print("}, \"nodeSets\": ");
        writeAssemblySets(m_deck.AssemblyNsets());
        m_out.print(", \"elementSets\": ");
        writeAssemblySets(m_deck.AssemblyElsets());
        m_out.print(", \"surfaces\": ");
        writeAssemblySurfaces();
        m_out.put('}');
    }

    void writeInstance(cow_String const& instance) {
        m_out.print("{\"part\": ");
        writePartOf(instance);
        writeTransform(instance);
        m_out.print(", \"nodes\": ");
        inp_CoordMap const& assemblyNodes = m_deck.AssemblyCoordMap();
        writeNodes(assemblyNodes.IsMember(instance) ? &assemblyNodes.ConstGet(instance) : nullptr);
        m_out.print(", \"elements\": ");
        writeElements(nestedElements(m_deck.AssemblyElementMap(), instance));
        writeLevelSetsAndSurfaces(m_deck.AssemblyNsets(), m_deck.AssemblyElsets(),
                                  m_deck.AssemblySurfaces(), instance);
        m_out.put('}');
    }

    // An instance that the maps know without a part name (none was
    // recorded for it) shows null rather than a made-up name.
    void writePartOf(cow_String const& instance) {
        auto const* holder = m_deck.InstancePartNames().ConstGetInstanceMap().Find(instance);
        if (holder != nullptr && holder->HasValue())
            fedeck_WriteJsonString(m_out, holder->ConstGet().View());
        else
            m_out.print("null");
    }

    // An instance without a recorded transform stands where its part stands.
    void writeTransform(cow_String const& instance) {
        gsl_Matrix transform;
        auto const* holder = m_deck.TransformationMap().ConstGetInstanceMap().Find(instance);
        if (holder != nullptr && holder->HasValue()) transform = holder->ConstGet();
        m_out.print(", \"rotation\": [");
        for (int row = 0; row < 3; ++row) {
            m_out.print(row > 0 ? ", [" : "[");
            for (int column = 0; column < 3; ++column) {
                if (column > 0) m_out.print(", ");
                number(transform.Element(row, column));
            }
            m_out.put(']');
        }
        m_out.print("], \"translation\": [");
        for (int row = 0; row < 3; ++row) {
            if (row > 0) m_out.print(", ");
            number(transform.Element(row, 3));
        }
        m_out.put(']');
    }

    // The nodes of the map's own level in global position.
    void writeNodes(inp_CoordMap const* nodes) {
        m_out.put('[');
        if (nodes != nullptr) {
            inp_MapInt2Coord const global = nodes->ConstGet();
            Separator separator(m_out);
            for (inp_MapInt2CoordSIT walk(global); walk.NotDone(); walk.Next()) {
                inp_Coord const& coord = walk.CurrentValue();
                separator.Next().put('[') << walk.CurrentKey();
                for (double const value : {coord.x, coord.y, coord.z}) {
                    m_out.print(", ");
                    number(value);
                }
                m_out.put(']');
            }
        }
        m_out.put(']');
    }

    void writeElements(ElementHolder const* holder) {
        m_out.put('[');
        if (holder != nullptr && holder->HasValue()) {
            Separator separator(m_out);
            for (inp_MapInt2ElementSIT walk(holder->ConstGet()); walk.NotDone(); walk.Next()) {
                inp_Element const& element = walk.CurrentValue();
                separator.Next().put('[') << walk.CurrentKey();
                m_out.print(", ");
                fedeck_WriteJsonString(m_out, element.type().View());
                int const* nodes = element.nodes();
                for (int i = 0; i < element.numNodesPerElement(); ++i)
                    m_out.print(", ") << nodes[i];
                m_out.put(']');
            }
        }
        m_out.put(']');
    }

    // The sets and surfaces a part, or an instance of the assembly, holds
    // under its name.
    void writeLevelSetsAndSurfaces(inpM_SetMap const& nodeSets, inpM_SetMap const& elementSets,
                                   inpM_SurfaceMap const& surfaces, cow_String const& level) {
        m_out.print(", \"nodeSets\": ");
        writeLevelSets(nodeSets, level);
        m_out.print(", \"elementSets\": ");
        writeLevelSets(elementSets, level);
        m_out.print(", \"surfaces\": {");
        if (surfaces.HasInstanceInPartInstanceSurfaceMap(level)) {
            Separator separator(m_out);
            surfaces.ConstGetPartInstanceSurfaceMap(level).ForEachSorted(
                [&](cow_String const& name, inpM_PartInstanceSurfaceHandle const& surface) {
                    key(separator, name);
                    writeSurface(surface.ConstGet());
                });
        }
        m_out.put('}');
    }

    void writeLevelSets(inpM_SetMap const& sets, cow_String const& level) {
        m_out.put('{');
        if (sets.HasInstance(level)) {
            Separator separator(m_out);
            sets.ConstGetNestedSetMap(level).ForEachSorted(
                [&](cow_String const& name, inpM_SetHandle const& set) {
                    key(separator, name);
                    writeIds(set->ConstGetIdList());
                });
        }
        m_out.put('}');
    }

    void writeAssemblySets(inpM_SetMap const& sets) {
        m_out.put('{');
        Separator separator(m_out);
        sets.ConstGetSetMap().ForEachSorted([&](cow_String const& name, inpM_SetHandle const& set) {
            key(separator, name);
            m_out.print("{\"ids\": ");
            writeIds(set->ConstGetIdList());
            m_out.print(", \"instances\": {");
            Separator instances(m_out);
            set->ConstGetInstanceIdLists().ForEachSorted(
                [&](cow_String const& instance, cow_List<int> const& ids) {
                    key(instances, instance);
                    writeIds(ids);
                });
            m_out.print("}}");
        });
        m_out.put('}');
    }

    void writeAssemblySurfaces() {
        m_out.put('{');
        Separator separator(m_out);
        m_deck.AssemblySurfaces().ConstGetAssemblyInstanceSurfaceMap().ForEachSorted(
            [&](cow_String const& name, inpM_AssemblyInstanceSurface const& surface) {
                key(separator, name);
                m_out.print("{\"nodes\": ");
                writeNodeAreas(surface.ConstGetAssemblyNodeAreaSurface().ConstGetNodeAreaList());
                m_out.print(", \"instances\": {");
                Separator instances(m_out);
                surface.ConstGetInstance2PartInstanceSurfaceMap().ForEachSorted(
                    [&](cow_String const& instance, inpM_PartInstanceSurfaceHandle const& part) {
                        key(instances, instance);
                        writeSurface(part.ConstGet());
                    });
                m_out.print("}}");
            });
        m_out.put('}');
    }

    void writeSurface(inpM_PartInstanceSurface const& surface) {
        switch (surface.Type()) {
            case inpM_ElementFaceIdSurfaceType:
                m_out.print("{\"type\": \"element\", \"faces\": ");
                writeFaces(surface.ConstGetFaceIdElementIdsMap());
                break;
            case inpM_NodeAreaSurfaceType:
                m_out.print("{\"type\": \"node\", \"nodes\": ");
                writeNodeAreas(surface.ConstGetNodeAreaList());
                break;
            case inpM_AnalyticalSurfaceType:
                m_out.print("{\"type\": \"analytical\"");
                break;
        }
        m_out.put('}');
    }

    // A face keeps its elements in the order they came; scripts compare
    // faces as sets, so they are written ascending.
    void writeFaces(inpM_FaceIdElementIdsMap const& faces) {
        m_out.put('{');
        Separator separator(m_out);
        std::vector<int> ascending;
        faces.ForEachSorted([&](cow_String const& face, cow_List<int> const& elements) {
            key(separator, face);
            ascending.assign(elements.begin(), elements.end());
            std::sort(ascending.begin(), ascending.end());
            writeIds(ascending);
        });
        m_out.put('}');
    }

    void writeNodeAreas(inpM_NodeAreaList const& nodes) {
        m_out.put('[');
        Separator separator(m_out);
        for (inpM_NodeAreaListIT walk(nodes); walk.NotDone(); walk.Next()) {
            separator.Next().put('[') << walk.CurrentNode();
            m_out.print(", ");
            number(walk.CurrentArea());
            m_out.put(']');
        }
        m_out.put(']');
    }

    template <class Ids>
    void writeIds(Ids const& ids) {
        m_out.put('[');
        Separator separator(m_out);
        for (int const id : ids) separator.Next() << id;
        m_out.put(']');
    }

    aio_ostream& m_out;
    inp_InputFile const& m_deck;
};

}  // namespace

fedeck_ModelCounts fedeck_CountModel(inp_InputFile const& deck) {
    fedeck_ModelCounts counts;
    counts.parts = static_cast<int>(inp_PartNames(deck).size());
    counts.instances = static_cast<int>(inp_InstanceNames(deck).size());
    counts.nodes = deck.AssemblyCoordMap().Count();
    counts.elements = elementCount(deck.AssemblyElementMap());
    counts.nodeSets =
        setNameCount(deck.AssemblyNsets(), false) + setNameCount(deck.PartNsets(), true);
    counts.elementSets =
        setNameCount(deck.AssemblyElsets(), false) + setNameCount(deck.PartElsets(), true);
    counts.surfaces = surfaceNameCount(deck.AssemblySurfaces(), false) +
                      surfaceNameCount(deck.PartSurfaces(), true);
    return counts;
}

void fedeck_WriteModelCounts(aio_ostream& out, fedeck_ModelCounts const& counts) {
    out.print("{\"parts\": ") << counts.parts;
    out.print(", \"instances\": ") << counts.instances;
    out.print(", \"nodes\": ") << counts.nodes;
    out.print(", \"elements\": ") << counts.elements;
    out.print(", \"nodeSets\": ") << counts.nodeSets;
    out.print(", \"elementSets\": ") << counts.elementSets;
    out.print(", \"surfaces\": ") << counts.surfaces;
    out.put('}');
}

void fedeck_WriteModelFields(aio_ostream& out, inp_InputFile const& deck) {
    ModelWriter(out, deck).Write();
}
