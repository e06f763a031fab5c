// The flat entry to the model: a deck run through the whole road, its maps
// read out into the caller's arrays on request. The maps stay where the
// road left them; what the handle keeps besides are the names it hands out
// and, per level, the groups and members that are asked for by index.

#include "binding/inp_CAPI_Model.h"

#include <malloc.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <memory>
#include <new>
#include <string>
#include <vector>

#include "mesh/inp_CoordMap.h"
#include "mesh/inp_MapInt2Element.h"
#include "mesh/inp_VtkCells.h"
#include "pipeline/inp_InputFile.h"
#include "pipeline/inp_ModelNames.h"
#include "support/inpM_AssemblyInstanceSurface.h"
#include "support/inpM_InstanceMap.h"
#include "support/inpM_SetMap.h"
#include "support/inpM_Surface.h"
#include "support/inpM_SurfaceMap.h"
#include "support/thr_Singleton.h"
#include "support/wip_WIP.h"

namespace {

using ElementHolder = inpM_InstanceMap<inp_MapInt2Element>;

struct ElementGroup {
    std::string type;
    std::int64_t count = 0;
    int width = 0;
};

struct NamedSet {
    std::string name;
    inpM_SetHandle set;
};

struct SurfacePiece {
    int instance = -1;
    int type = inp_CAPI_ANALYTICAL;
    std::vector<std::int32_t> ids;
    std::vector<std::int32_t> faces;
    std::vector<double> areas;
};

struct NamedSurface {
    std::string name;
    std::vector<SurfacePiece> pieces;
};

// What the handle has worked out of one level, on the first question.
struct LevelCache {
    bool hasGroups = false;
    std::vector<ElementGroup> groups;
    bool hasSets[2] = {false, false};
    std::vector<NamedSet> sets[2];
    bool hasSurfaces = false;
    std::vector<NamedSurface> surfaces;
};

}  // namespace

struct inp_CAPI_Model {
    bool read = false;
    std::unique_ptr<inp_InputFile> deck;
    std::vector<cow_String> parts;
    std::vector<cow_String> instances;
    std::vector<std::string> partNames;
    std::vector<std::string> instanceNames;
    std::vector<std::string> instanceParts;
    std::vector<bool> instanceHasPart;
    std::map<std::pair<int, int>, LevelCache> caches;
    std::vector<std::string> faceNames;
    std::map<std::string, int> faceIndex;
};

namespace {

bool isRead(inp_CAPI_Model const* model) {
    return model != nullptr && model->read;
}

int levelCount(inp_CAPI_Model const* model, int level) {
    switch (level) {
        case inp_CAPI_ASSEMBLY:
            return 1;
        case inp_CAPI_PART:
            return static_cast<int>(model->parts.size());
        case inp_CAPI_INSTANCE:
            return static_cast<int>(model->instances.size());
        default:
            return -1;
    }
}

bool validLevel(inp_CAPI_Model const* model, int level, int index) {
    return isRead(model) && index >= 0 && index < levelCount(model, level);
}

// The handle is const for its callers; what it works out on the way is not
// part of what they see.
LevelCache& cacheOf(inp_CAPI_Model const* model, int level, int index) {
    return const_cast<inp_CAPI_Model*>(model)->caches[{level, index}];
}

inp_InputFile const& deckOf(inp_CAPI_Model const* model) {
    return *model->deck;
}

cow_String const& nameOf(inp_CAPI_Model const* model, int level, int index) {
    static cow_String const assembly;
    if (level == inp_CAPI_PART) return model->parts[std::size_t(index)];
    if (level == inp_CAPI_INSTANCE) return model->instances[std::size_t(index)];
    return assembly;
}

// -- nodes and elements ----------------------------------------------------------------------

inp_CoordMap const* nodesOf(inp_CAPI_Model const* model, int level, int index) {
    inp_InputFile const& deck = deckOf(model);
    cow_String const& name = nameOf(model, level, index);
    if (level == inp_CAPI_ASSEMBLY) return &deck.AssemblyCoordMap();
    inp_CoordMap const& map =
        level == inp_CAPI_PART ? deck.PartCoordMap() : deck.AssemblyCoordMap();
    return map.IsMember(name) ? &map.ConstGet(name) : nullptr;
}

inp_MapInt2Element const* elementsOf(inp_CAPI_Model const* model, int level, int index) {
    inp_InputFile const& deck = deckOf(model);
    ElementHolder const* holder = &deck.AssemblyElementMap();
    if (level != inp_CAPI_ASSEMBLY) {
        ElementHolder const& outer =
            level == inp_CAPI_PART ? deck.PartElementMap() : deck.AssemblyElementMap();
        holder = outer.ConstGetInstanceMap().Find(nameOf(model, level, index));
    }
    return holder != nullptr && holder->HasValue() ? &holder->ConstGet() : nullptr;
}

std::vector<ElementGroup> const& groupsOf(inp_CAPI_Model const* model, int level, int index) {
    LevelCache& cache = cacheOf(model, level, index);
    if (cache.hasGroups) return cache.groups;
    cache.hasGroups = true;
    inp_MapInt2Element const* elements = elementsOf(model, level, index);
    if (elements == nullptr) return cache.groups;
    std::map<std::string, ElementGroup> byType;
    std::string_view lastType;
    ElementGroup* last = nullptr;
    for (inp_MapInt2ElementSIT walk(*elements); walk.NotDone(); walk.Next()) {
        inp_Element const& element = walk.CurrentValue();
        if (last == nullptr || element.type().View() != lastType) {
            last = &byType[std::string(element.type().View())];
            last->type = element.type().View();
            lastType = last->type;
        }
        ++last->count;
        last->width = std::max(last->width, element.numNodesPerElement());
    }
    for (auto& [type, group] : byType) cache.groups.push_back(group);
    return cache.groups;
}

bool validType(inp_CAPI_Model const* model, int level, int index, int type) {
    return validLevel(model, level, index) && type >= 0 &&
           type < static_cast<int>(groupsOf(model, level, index).size());
}

// -- sets ------------------------------------------------------------------------------------

inpM_SetMap const& setMapOf(inp_CAPI_Model const* model, int level, int kind) {
    inp_InputFile const& deck = deckOf(model);
    if (level == inp_CAPI_PART)
        return kind == inp_CAPI_NODE_SET ? deck.PartNsets() : deck.PartElsets();
    return kind == inp_CAPI_NODE_SET ? deck.AssemblyNsets() : deck.AssemblyElsets();
}

std::vector<NamedSet> const& setsOf(inp_CAPI_Model const* model, int level, int index, int kind) {
    LevelCache& cache = cacheOf(model, level, index);
    std::vector<NamedSet>& sets = cache.sets[kind];
    if (cache.hasSets[kind]) return sets;
    cache.hasSets[kind] = true;
    inpM_SetMap const& map = setMapOf(model, level, kind);
    auto const add = [&sets](cow_String const& name, inpM_SetHandle const& set) {
        sets.push_back({std::string(name.View()), set});
    };
    cow_String const& name = nameOf(model, level, index);
    if (level == inp_CAPI_ASSEMBLY)
        map.ConstGetSetMap().ForEachSorted(add);
    else if (map.HasInstance(name))
        map.ConstGetNestedSetMap(name).ForEachSorted(add);
    return sets;
}

bool validSet(inp_CAPI_Model const* model, int level, int index, int kind, int set) {
    return validLevel(model, level, index) &&
           (kind == inp_CAPI_NODE_SET || kind == inp_CAPI_ELEMENT_SET) && set >= 0 &&
           set < static_cast<int>(setsOf(model, level, index, kind).size());
}

// -1 for a name the model does not know as an instance.
int instanceIndex(inp_CAPI_Model const* model, std::string_view name) {
    auto const found = std::lower_bound(
        model->instanceNames.begin(), model->instanceNames.end(), name,
        [](std::string const& a, std::string_view b) { return std::string_view(a) < b; });
    return found != model->instanceNames.end() && *found == name
               ? static_cast<int>(found - model->instanceNames.begin())
               : -1;
}

// Hands each member to `visit` with its instance (-1 for the level's own):
// the level's own ids, then those of each instance the model knows. Counting
// and filling walk the set alike, with no copy of the ids in between.
template <class Visit>
void forEachMember(inp_CAPI_Model const* model, inpM_BaseSet const& set, Visit visit) {
    for (int const id : set.ConstGetIdList()) visit(id, -1);
    set.ConstGetInstanceIdLists().ForEachSorted(
        [&](cow_String const& instance, cow_List<int> const& ids) {
            int const at = instanceIndex(model, instance.View());
            if (at < 0) return;
            for (int const id : ids) visit(id, at);
        });
}

// -- surfaces --------------------------------------------------------------------------------

int faceIndexOf(inp_CAPI_Model const* model, std::string const& face) {
    auto* writable = const_cast<inp_CAPI_Model*>(model);
    auto const [found, added] =
        writable->faceIndex.emplace(face, static_cast<int>(writable->faceNames.size()));
    if (added) writable->faceNames.push_back(face);
    return found->second;
}

void addNodeAreas(inpM_NodeAreaList const& nodes, SurfacePiece& piece) {
    for (inpM_NodeAreaListIT walk(nodes); walk.NotDone(); walk.Next()) {
        piece.ids.push_back(walk.CurrentNode());
        piece.areas.push_back(walk.CurrentArea());
    }
}

SurfacePiece pieceOf(inp_CAPI_Model const* model, inpM_PartInstanceSurface const& surface,
                     int instance) {
    SurfacePiece piece;
    piece.instance = instance;
    switch (surface.Type()) {
        case inpM_ElementFaceIdSurfaceType:
            piece.type = inp_CAPI_ELEMENT_FACES;
            surface.ConstGetFaceIdElementIdsMap().ForEachSorted(
                [&](cow_String const& face, cow_List<int> const& elements) {
                    int const faceAt = faceIndexOf(model, std::string(face.View()));
                    for (int const element : elements) {
                        piece.ids.push_back(element);
                        piece.faces.push_back(faceAt);
                    }
                });
            break;
        case inpM_NodeAreaSurfaceType:
            piece.type = inp_CAPI_NODES;
            addNodeAreas(surface.ConstGetNodeAreaList(), piece);
            break;
        case inpM_AnalyticalSurfaceType:
            piece.type = inp_CAPI_ANALYTICAL;
            break;
    }
    return piece;
}

std::vector<NamedSurface> const& surfacesOf(inp_CAPI_Model const* model, int level, int index) {
    LevelCache& cache = cacheOf(model, level, index);
    if (cache.hasSurfaces) return cache.surfaces;
    cache.hasSurfaces = true;
    inp_InputFile const& deck = deckOf(model);
    if (level == inp_CAPI_ASSEMBLY) {
        deck.AssemblySurfaces().ConstGetAssemblyInstanceSurfaceMap().ForEachSorted(
            [&](cow_String const& name, inpM_AssemblyInstanceSurface const& surface) {
                NamedSurface named{std::string(name.View()), {}};
                SurfacePiece own;
                own.type = inp_CAPI_NODES;
                addNodeAreas(surface.ConstGetAssemblyNodeAreaSurface().ConstGetNodeAreaList(), own);
                named.pieces.push_back(std::move(own));
                surface.ConstGetInstance2PartInstanceSurfaceMap().ForEachSorted(
                    [&](cow_String const& instance, inpM_PartInstanceSurfaceHandle const& part) {
                        int const at = instanceIndex(model, instance.View());
                        if (at >= 0) named.pieces.push_back(pieceOf(model, part.ConstGet(), at));
                    });
                cache.surfaces.push_back(std::move(named));
            });
        return cache.surfaces;
    }
    inpM_SurfaceMap const& map =
        level == inp_CAPI_PART ? deck.PartSurfaces() : deck.AssemblySurfaces();
    cow_String const& name = nameOf(model, level, index);
    if (map.HasInstanceInPartInstanceSurfaceMap(name))
        map.ConstGetPartInstanceSurfaceMap(name).ForEachSorted(
            [&](cow_String const& surface, inpM_PartInstanceSurfaceHandle const& handle) {
                cache.surfaces.push_back(
                    {std::string(surface.View()), {pieceOf(model, handle.ConstGet(), -1)}});
            });
    return cache.surfaces;
}

SurfacePiece const* pieceAt(inp_CAPI_Model const* model, int level, int index, int surface,
                            int piece) {
    if (!validLevel(model, level, index)) return nullptr;
    std::vector<NamedSurface> const& surfaces = surfacesOf(model, level, index);
    if (surface < 0 || surface >= static_cast<int>(surfaces.size())) return nullptr;
    std::vector<SurfacePiece> const& pieces = surfaces[std::size_t(surface)].pieces;
    if (piece < 0 || piece >= static_cast<int>(pieces.size())) return nullptr;
    return &pieces[std::size_t(piece)];
}

// -- reading ---------------------------------------------------------------------------------

int severityOf(wip_Diagnostic const& diagnostic) {
    switch (diagnostic.severity) {
        case wip_Severity::Warning:
            return 0;
        case wip_Severity::Error:
            return 1;
        case wip_Severity::Fatal:
            return 2;
    }
    return 1;
}

void sendDiagnostics(wip_WIP const& sink, inp_CAPI_ModelDiagnostic diagnostic, void* context) {
    if (diagnostic == nullptr) return;
    for (wip_Diagnostic const& found : sink.Diagnostics()) {
        atr_Location const* location = found.Location();
        std::string const text(found.text.View());
        std::string const file = location != nullptr ? std::string(location->file.View()) : "";
        std::string const keyword =
            location != nullptr ? std::string(location->keyword.View()) : "";
        diagnostic(context, severityOf(found), text.c_str(), file.empty() ? nullptr : file.c_str(),
                   location != nullptr ? location->line : 0,
                   keyword.empty() ? nullptr : keyword.c_str());
    }
}

// The names the handle hands out, gathered once the road has run.
void gatherNames(inp_CAPI_Model& model) {
    inp_InputFile const& deck = *model.deck;
    model.parts = inp_PartNames(deck);
    model.instances = inp_InstanceNames(deck);
    for (cow_String const& part : model.parts) model.partNames.emplace_back(part.View());
    for (cow_String const& instance : model.instances) {
        model.instanceNames.emplace_back(instance.View());
        auto const* holder = deck.InstancePartNames().ConstGetInstanceMap().Find(instance);
        bool const known = holder != nullptr && holder->HasValue();
        model.instanceHasPart.push_back(known);
        model.instanceParts.emplace_back(known ? holder->ConstGet().View() : std::string_view());
    }
}

// The road of a new job; false when the deck cannot be opened.
bool runRoad(inp_CAPI_Model& model, char const* fileName, char const* includeDirectory) {
    std::string directory = includeDirectory != nullptr ? includeDirectory : "";
    if (directory.empty()) directory = std::filesystem::path(fileName).parent_path().string();
    if (!directory.empty()) model.deck->SetIncludePath(cow_String(directory.c_str()));
    std::error_code ignored;
    if (std::filesystem::is_directory(fileName, ignored)) return false;
    bool parsed = false;
    try {
        model.deck->Run(cow_String(fileName), inp_Stage::OutOfPlace,
                        inp_InputFile::RunRule::StopAfterErrors, [&](inp_Stage) { parsed = true; });
    } catch (...) {
        if (parsed) throw;
        return false;
    }
    return true;
}

}  // namespace

extern "C" {

inp_CAPI_Model* inp_CAPI_Model_New(void) {
    return new (std::nothrow) inp_CAPI_Model();
}

int inp_CAPI_Model_Read(inp_CAPI_Model* model, char const* fileName, char const* includeDirectory,
                        inp_CAPI_ModelDiagnostic diagnostic, void* context) {
    if (model == nullptr || fileName == nullptr || model->read) return inp_CAPI_MODEL_MISUSE;
    model->read = true;
    wip_WIP& sink = thr_ThreadSingleton<wip_WIP>::Instance();
    sink.Clear();
    try {
        model->deck = std::make_unique<inp_InputFile>();
        if (!runRoad(*model, fileName, includeDirectory)) {
            sink.Clear();
            model->deck = std::make_unique<inp_InputFile>();
            return inp_CAPI_MODEL_UNREADABLE;
        }
        gatherNames(*model);
        // The keywords are not handed out: what is left of them after the
        // road (data lines the maps were read from, among them) goes now.
        model->deck->GetKeywords() = cow_List<inp_Keyword>();
        bool const errors = sink.HasErrors();
        sendDiagnostics(sink, diagnostic, context);
        sink.Clear();
        return errors ? inp_CAPI_MODEL_ERRORS : inp_CAPI_MODEL_CLEAN;
    } catch (...) {
        sink.Clear();
        model->deck = std::make_unique<inp_InputFile>();
        model->parts.clear();
        model->instances.clear();
        return inp_CAPI_MODEL_FAILED;
    }
}

void inp_CAPI_Model_Free(inp_CAPI_Model* model) {
    delete model;
}

int inp_CAPI_Model_LevelCount(inp_CAPI_Model const* model, int level) {
    return isRead(model) ? levelCount(model, level) : -1;
}

char const* inp_CAPI_Model_LevelName(inp_CAPI_Model const* model, int level, int index) {
    if (!validLevel(model, level, index)) return nullptr;
    if (level == inp_CAPI_PART) return model->partNames[std::size_t(index)].c_str();
    if (level == inp_CAPI_INSTANCE) return model->instanceNames[std::size_t(index)].c_str();
    return "";
}

char const* inp_CAPI_Model_InstancePart(inp_CAPI_Model const* model, int instance) {
    if (!validLevel(model, inp_CAPI_INSTANCE, instance) ||
        !model->instanceHasPart[std::size_t(instance)])
        return nullptr;
    return model->instanceParts[std::size_t(instance)].c_str();
}

int inp_CAPI_Model_InstanceTransform(inp_CAPI_Model const* model, int instance, double* rotation,
                                     double* translation) {
    if (!validLevel(model, inp_CAPI_INSTANCE, instance) || rotation == nullptr ||
        translation == nullptr)
        return -1;
    gsl_Matrix transform;
    auto const* holder = deckOf(model).TransformationMap().ConstGetInstanceMap().Find(
        model->instances[std::size_t(instance)]);
    if (holder != nullptr && holder->HasValue()) transform = holder->ConstGet();
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column)
            rotation[row * 3 + column] = transform.Element(row, column);
        translation[row] = transform.Element(row, 3);
    }
    return 0;
}

int64_t inp_CAPI_Model_NodeCount(inp_CAPI_Model const* model, int level, int index) {
    if (!validLevel(model, level, index)) return -1;
    inp_CoordMap const* nodes = nodesOf(model, level, index);
    if (nodes == nullptr) return 0;
    // The level's own nodes, counted without placing them: Count() takes in
    // the instances below, which only the assembly's map has.
    int64_t count = nodes->Count();
    for (cow_String const& instance : nodes->Instances())
        count -= nodes->ConstGet(instance).Count();
    return count;
}

int inp_CAPI_Model_Nodes(inp_CAPI_Model const* model, int level, int index, int32_t* labels,
                         double* coordinates) {
    if (!validLevel(model, level, index) || labels == nullptr || coordinates == nullptr) return -1;
    inp_CoordMap const* nodes = nodesOf(model, level, index);
    if (nodes == nullptr) return 0;
    inp_MapInt2Coord const global = nodes->ConstGet();
    std::size_t at = 0;
    for (inp_MapInt2CoordSIT walk(global); walk.NotDone(); walk.Next(), ++at) {
        inp_Coord const& coord = walk.CurrentValue();
        labels[at] = walk.CurrentKey();
        coordinates[3 * at] = coord.x;
        coordinates[3 * at + 1] = coord.y;
        coordinates[3 * at + 2] = coord.z;
    }
    return 0;
}

int inp_CAPI_Model_ElementTypeCount(inp_CAPI_Model const* model, int level, int index) {
    if (!validLevel(model, level, index)) return -1;
    return static_cast<int>(groupsOf(model, level, index).size());
}

char const* inp_CAPI_Model_ElementTypeName(inp_CAPI_Model const* model, int level, int index,
                                           int type) {
    if (!validType(model, level, index, type)) return nullptr;
    return groupsOf(model, level, index)[std::size_t(type)].type.c_str();
}

int64_t inp_CAPI_Model_ElementCount(inp_CAPI_Model const* model, int level, int index, int type,
                                    int* width) {
    if (!validType(model, level, index, type)) return -1;
    ElementGroup const& group = groupsOf(model, level, index)[std::size_t(type)];
    if (width != nullptr) *width = group.width;
    return group.count;
}

int inp_CAPI_Model_Elements(inp_CAPI_Model const* model, int level, int index, int type,
                            int32_t* labels, int32_t* connectivity) {
    if (!validType(model, level, index, type) || labels == nullptr || connectivity == nullptr)
        return -1;
    ElementGroup const& group = groupsOf(model, level, index)[std::size_t(type)];
    std::size_t const width = std::size_t(group.width);
    std::size_t at = 0;
    for (inp_MapInt2ElementSIT walk(*elementsOf(model, level, index)); walk.NotDone();
         walk.Next()) {
        inp_Element const& element = walk.CurrentValue();
        if (element.type().View() != group.type) continue;
        labels[at] = walk.CurrentKey();
        int32_t* row = connectivity + at * width;
        int const count = element.numNodesPerElement();
        std::copy_n(element.nodes(), count, row);
        std::fill(row + count, row + width, 0);
        ++at;
    }
    return 0;
}

int inp_CAPI_Model_SameNodes(inp_CAPI_Model const* model, int level, int index, int otherLevel,
                             int otherIndex) {
    if (!validLevel(model, level, index) || !validLevel(model, otherLevel, otherIndex)) return -1;
    inp_CoordMap const* nodes = nodesOf(model, level, index);
    inp_CoordMap const* other = nodesOf(model, otherLevel, otherIndex);
    if (nodes == nullptr || other == nullptr) return 0;
    // Nodes handed out as stored: no transform and no renumbering between.
    auto const asStored = [](inp_CoordMap const& map) {
        return map.ConstGetTransformation().IsIdentity() && map.ConstGetLocalIds().IsEmpty();
    };
    return asStored(*nodes) && asStored(*other) && nodes->SharesNodesWith(*other) ? 1 : 0;
}

int inp_CAPI_Model_SameElements(inp_CAPI_Model const* model, int level, int index, int otherLevel,
                                int otherIndex) {
    if (!validLevel(model, level, index) || !validLevel(model, otherLevel, otherIndex)) return -1;
    inp_MapInt2Element const* elements = elementsOf(model, level, index);
    inp_MapInt2Element const* other = elementsOf(model, otherLevel, otherIndex);
    return elements != nullptr && other != nullptr && elements->SharesTableWith(*other) ? 1 : 0;
}

int inp_CAPI_Model_ReleaseElements(inp_CAPI_Model* model) {
    if (!isRead(model)) return -1;
    model->deck->ReleaseElementMaps();
    for (auto& [level, cache] : model->caches) {
        cache.hasGroups = false;
        cache.groups.clear();
    }
    // A million elements are a million small blocks: their pages go back to
    // the system, not only to the allocator's free lists.
#ifdef __GLIBC__
    malloc_trim(0);
#endif
    return 0;
}

int inp_CAPI_Model_SetCount(inp_CAPI_Model const* model, int level, int index, int kind) {
    if (!validLevel(model, level, index) ||
        (kind != inp_CAPI_NODE_SET && kind != inp_CAPI_ELEMENT_SET))
        return -1;
    return static_cast<int>(setsOf(model, level, index, kind).size());
}

char const* inp_CAPI_Model_SetName(inp_CAPI_Model const* model, int level, int index, int kind,
                                   int set) {
    if (!validSet(model, level, index, kind, set)) return nullptr;
    return setsOf(model, level, index, kind)[std::size_t(set)].name.c_str();
}

int64_t inp_CAPI_Model_SetSize(inp_CAPI_Model const* model, int level, int index, int kind,
                               int set) {
    if (!validSet(model, level, index, kind, set)) return -1;
    inpM_SetHandle const& handle = setsOf(model, level, index, kind)[std::size_t(set)].set;
    int64_t size = 0;
    forEachMember(model, *handle, [&size](int, int) { ++size; });
    return size;
}

int inp_CAPI_Model_SetMembers(inp_CAPI_Model const* model, int level, int index, int kind, int set,
                              int32_t* ids, int32_t* instances) {
    if (!validSet(model, level, index, kind, set) || ids == nullptr) return -1;
    inpM_SetHandle const& handle = setsOf(model, level, index, kind)[std::size_t(set)].set;
    std::size_t at = 0;
    forEachMember(model, *handle, [&](int id, int instance) {
        ids[at] = id;
        if (instances != nullptr) instances[at] = instance;
        ++at;
    });
    return 0;
}

int inp_CAPI_Model_SurfaceCount(inp_CAPI_Model const* model, int level, int index) {
    if (!validLevel(model, level, index)) return -1;
    return static_cast<int>(surfacesOf(model, level, index).size());
}

char const* inp_CAPI_Model_SurfaceName(inp_CAPI_Model const* model, int level, int index,
                                       int surface) {
    if (pieceAt(model, level, index, surface, 0) == nullptr) return nullptr;
    return surfacesOf(model, level, index)[std::size_t(surface)].name.c_str();
}

int inp_CAPI_Model_SurfacePieceCount(inp_CAPI_Model const* model, int level, int index,
                                     int surface) {
    if (pieceAt(model, level, index, surface, 0) == nullptr) return -1;
    return static_cast<int>(surfacesOf(model, level, index)[std::size_t(surface)].pieces.size());
}

int inp_CAPI_Model_SurfacePiece(inp_CAPI_Model const* model, int level, int index, int surface,
                                int piece, int* instance, int* type, int64_t* size) {
    SurfacePiece const* found = pieceAt(model, level, index, surface, piece);
    if (found == nullptr) return -1;
    if (instance != nullptr) *instance = found->instance;
    if (type != nullptr) *type = found->type;
    if (size != nullptr) *size = static_cast<int64_t>(found->ids.size());
    return 0;
}

int inp_CAPI_Model_SurfaceMembers(inp_CAPI_Model const* model, int level, int index, int surface,
                                  int piece, int32_t* ids, int32_t* faces, double* areas) {
    SurfacePiece const* found = pieceAt(model, level, index, surface, piece);
    if (found == nullptr || ids == nullptr) return -1;
    std::copy(found->ids.begin(), found->ids.end(), ids);
    if (faces != nullptr) {
        if (found->faces.empty())
            std::fill_n(faces, found->ids.size(), -1);
        else
            std::copy(found->faces.begin(), found->faces.end(), faces);
    }
    if (areas != nullptr) {
        if (found->areas.empty())
            std::fill_n(areas, found->ids.size(), 0.0);
        else
            std::copy(found->areas.begin(), found->areas.end(), areas);
    }
    return 0;
}

int inp_CAPI_Model_FaceCount(inp_CAPI_Model const* model) {
    if (!isRead(model)) return -1;
    // Every surface of every level is read first: a face gets its index
    // when a surface that uses it is read.
    for (int level : {inp_CAPI_ASSEMBLY, inp_CAPI_PART, inp_CAPI_INSTANCE})
        for (int index = 0; index < levelCount(model, level); ++index)
            surfacesOf(model, level, index);
    return static_cast<int>(model->faceNames.size());
}

char const* inp_CAPI_Model_FaceName(inp_CAPI_Model const* model, int face) {
    if (!isRead(model) || face < 0 || face >= inp_CAPI_Model_FaceCount(model)) return nullptr;
    return model->faceNames[std::size_t(face)].c_str();
}

int inp_CAPI_VtkCell(char const* type, int* nodeCount, int* order, char const** name) {
    inp_VtkCell const* cell = type != nullptr ? inp_VtkCellOf(type) : nullptr;
    if (cell == nullptr) return 0;
    if (nodeCount != nullptr) *nodeCount = cell->nodeCount;
    if (order != nullptr) std::copy_n(cell->order, cell->nodeCount, order);
    if (name != nullptr) *name = cell->name;
    return cell->vtkType;
}

}  // extern "C"
