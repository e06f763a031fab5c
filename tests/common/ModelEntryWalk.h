#pragma once
// Every accessor of the flat model entry over a deck file, each array filled,
// for the fuzz target and tests that must see the entry take any deck
// without a fault. Returns a sum of what was read, so that a caller can
// keep the calls from being optimised away.

#include <cstddef>
#include <cstdint>
#include <vector>

#include "binding/inp_CAPI_Model.h"

namespace model_entry_walk {

inline std::size_t walkNodes(inp_CAPI_Model const* model, int level, int index) {
    std::int64_t const count = inp_CAPI_Model_NodeCount(model, level, index);
    std::vector<std::int32_t> labels(std::size_t(count) + 1);
    std::vector<double> coordinates(3 * std::size_t(count) + 1);
    inp_CAPI_Model_Nodes(model, level, index, labels.data(), coordinates.data());
    return std::size_t(count);
}

inline std::size_t walkElements(inp_CAPI_Model const* model, int level, int index) {
    std::size_t read = 0;
    for (int type = 0; type < inp_CAPI_Model_ElementTypeCount(model, level, index); ++type) {
        int width = 0;
        std::int64_t const count = inp_CAPI_Model_ElementCount(model, level, index, type, &width);
        std::vector<std::int32_t> labels(std::size_t(count) + 1);
        std::vector<std::int32_t> connectivity(std::size_t(count) * std::size_t(width) + 1);
        inp_CAPI_Model_Elements(model, level, index, type, labels.data(), connectivity.data());
        read += std::size_t(count) +
                (inp_CAPI_Model_ElementTypeName(model, level, index, type) ? 1 : 0);
    }
    return read;
}

inline std::size_t walkSetsAndSurfaces(inp_CAPI_Model const* model, int level, int index) {
    std::size_t read = 0;
    for (int kind : {inp_CAPI_NODE_SET, inp_CAPI_ELEMENT_SET})
        for (int set = 0; set < inp_CAPI_Model_SetCount(model, level, index, kind); ++set) {
            std::int64_t const size = inp_CAPI_Model_SetSize(model, level, index, kind, set);
            std::vector<std::int32_t> ids(std::size_t(size) + 1);
            std::vector<std::int32_t> instances(std::size_t(size) + 1);
            inp_CAPI_Model_SetMembers(model, level, index, kind, set, ids.data(), instances.data());
            read += std::size_t(size);
        }
    for (int surface = 0; surface < inp_CAPI_Model_SurfaceCount(model, level, index); ++surface)
        for (int piece = 0; piece < inp_CAPI_Model_SurfacePieceCount(model, level, index, surface);
             ++piece) {
            int instance = 0;
            int type = 0;
            std::int64_t size = 0;
            inp_CAPI_Model_SurfacePiece(model, level, index, surface, piece, &instance, &type,
                                        &size);
            std::vector<std::int32_t> ids(std::size_t(size) + 1);
            std::vector<std::int32_t> faces(std::size_t(size) + 1);
            std::vector<double> areas(std::size_t(size) + 1);
            inp_CAPI_Model_SurfaceMembers(model, level, index, surface, piece, ids.data(),
                                          faces.data(), areas.data());
            read += std::size_t(size);
        }
    return read;
}

}  // namespace model_entry_walk

inline std::size_t WalkModelEntry(char const* deck, char const* includeDirectory) {
    using namespace model_entry_walk;
    inp_CAPI_Model* model = inp_CAPI_Model_New();
    inp_CAPI_Model_Read(model, deck, includeDirectory, nullptr, nullptr);
    std::size_t read = 0;
    for (int face = 0; face < inp_CAPI_Model_FaceCount(model); ++face)
        read += inp_CAPI_Model_FaceName(model, face) != nullptr ? 1 : 0;
    for (int level : {inp_CAPI_ASSEMBLY, inp_CAPI_PART, inp_CAPI_INSTANCE})
        for (int index = 0; index < inp_CAPI_Model_LevelCount(model, level); ++index) {
            read += walkElements(model, level, index) + walkNodes(model, level, index) +
                    walkSetsAndSurfaces(model, level, index);
            read += inp_CAPI_Model_SameNodes(model, level, index, inp_CAPI_ASSEMBLY, 0) == 1;
        }
    for (int instance = 0; instance < inp_CAPI_Model_LevelCount(model, inp_CAPI_INSTANCE);
         ++instance) {
        double rotation[9];
        double translation[3];
        inp_CAPI_Model_InstanceTransform(model, instance, rotation, translation);
        read += inp_CAPI_Model_InstancePart(model, instance) != nullptr ? 1 : 0;
    }
    inp_CAPI_Model_ReleaseElements(model);
    for (int index = 0; index < inp_CAPI_Model_LevelCount(model, inp_CAPI_INSTANCE); ++index)
        read += walkElements(model, inp_CAPI_INSTANCE, index);
    inp_CAPI_Model_Free(model);
    return read;
}
