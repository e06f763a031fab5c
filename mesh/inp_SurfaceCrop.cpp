// The Crop family of inp_SurfaceVisitor: shortening a copy of a surface to
// what lies in the box of a cropped surface.

#include "mesh/inp_SurfaceVisitor.h"
#include "mesh/shp_ShapeDictionary.h"
#include "support/inpM_SurfaceFacet.h"

namespace {

// A node record that is there and defined; a node that is not counts as
// one without coordinates.
inp_Coord const* coordinatesOf(int node, inp_MapInt2Coord const& coords) {
    inp_Coord const* record = coords.Find(node);
    return record != nullptr && record->defined ? record : nullptr;
}

// The shape of the element type last asked for: the elements of a surface
// mostly come from one *ELEMENT keyword and share their type, so a run of
// them costs one lookup.
class ShapeOfType {
  public:
    shp_Shape const* Of(cow_String const& type) {
        if (!m_known || (!type.SharesWith(m_type) && type != m_type)) {
            m_type = type;
            m_shape = shp_ShapeDictionary::GetShape(type);
            m_known = true;
        }
        return m_shape;
    }

  private:
    cow_String m_type;
    shp_Shape const* m_shape = nullptr;
    bool m_known = false;
};

// Whether a node of the face lies in the box. Positions beyond the element's
// connectivity (an element shorter than its type) name no node.
bool faceReachesBox(inp_Element const& element, shp_Shape const& shape, int face,
                    inp_MapInt2Coord const& coords, inp_CropDefinition const& crop) {
    int const* const positions = shape.FaceNodes(face);
    for (int k = 0; k < shape.NumberOfFaceNodes(face); ++k) {
        if (positions[k] >= element.numNodesPerElement()) continue;
        inp_Coord const* record = coordinatesOf(element.nodes()[positions[k]], coords);
        if (record != nullptr && crop.IsInBox(*record)) return true;
    }
    return false;
}

}  // namespace

void inp_SurfaceVisitor::Crop(inpM_NodeAreaSurface& surface, inpM_NodeAreaList const& source,
                              inp_MapInt2Coord const& coords, inp_MapInt2Element const&,
                              inp_CropDefinition const& crop) {
    inpM_NodeAreaList outside;
    for (auto entry : source) {
        inp_Coord const* record = coordinatesOf(entry.key, coords);
        if (record != nullptr && !crop.IsInBox(*record)) outside.Insert(entry.key, entry.value);
    }
    if (!outside.IsEmpty()) surface.Difference(outside);
}

void inp_SurfaceVisitor::Crop(inpM_ElementFaceIdSurface& surface, cow_String const& faceId,
                              cow_List<int> const& source, inp_MapInt2Coord const& coords,
                              inp_MapInt2Element const& elements, inp_CropDefinition const& crop) {
    inpM_SurfaceFacet const facet(faceId);
    if (!facet.isValid()) return;
    ShapeOfType shapes;
    cow_List<int> outside;
    for (int id : source) {
        inp_Element const* element = elements.GetEltPtr(id);
        if (element == nullptr) continue;
        shp_Shape const* shape = shapes.Of(element->type());
        if (shape == nullptr || !shape->HasFace(facet.id())) continue;
        if (!faceReachesBox(*element, *shape, facet.id(), coords, crop)) outside.Append(id);
    }
    if (!outside.IsEmpty()) surface.Difference(faceId, outside);
}

void inp_SurfaceVisitor::Crop(inpM_ElementFaceIdSurface& surface,
                              inpM_FaceIdElementIdsMap const& source,
                              inp_MapInt2Coord const& coords, inp_MapInt2Element const& elements,
                              inp_CropDefinition const& crop) {
    inpM_FaceIdElementIdsMap const faces = source;  // counted: source may be the surface's own
    faces.ForEachSorted([&](cow_String const& faceId, cow_List<int> const& ids) {
        Crop(surface, faceId, ids, coords, elements, crop);
    });
}

void inp_SurfaceVisitor::Crop(inpM_ElementFaceIdSurface& surface,
                              inpM_PartInstanceSurface const& source,
                              inp_MapInt2Coord const& coords, inp_MapInt2Element const& elements,
                              inp_CropDefinition const& crop) {
    Crop(surface, source.ConstGetFaceIdElementIdsMap(), coords, elements, crop);
}

void inp_SurfaceVisitor::Crop(inpM_NodeAreaSurface& surface, inpM_PartInstanceSurface const& source,
                              inp_MapInt2Coord const& coords, inp_MapInt2Element const& elements,
                              inp_CropDefinition const& crop) {
    Crop(surface, source.ConstGetNodeAreaList(), coords, elements, crop);
}

void inp_SurfaceVisitor::Crop(inpM_PartInstanceSurface& surface,
                              inpM_PartInstanceSurface const& source,
                              inp_MapInt2Coord const& coords, inp_MapInt2Element const& elements,
                              inp_CropDefinition const& crop) {
    switch (surface.Type()) {
        case inpM_ElementFaceIdSurfaceType:
            Crop(static_cast<inpM_ElementFaceIdSurface&>(surface), source, coords, elements, crop);
            break;
        case inpM_NodeAreaSurfaceType:
            Crop(static_cast<inpM_NodeAreaSurface&>(surface), source, coords, elements, crop);
            break;
        default:
            break;
    }
}

void inp_SurfaceVisitor::Crop(inpM_AssemblyInstanceSurface& surface, cow_String const& instance,
                              inpM_PartInstanceSurface const& source,
                              inp_MapInt2Coord const& coords, inp_MapInt2Element const& elements,
                              inp_CropDefinition const& crop) {
    inpM_PartInstanceSurfaceMap& parts = surface.GetInstance2PartInstanceSurfaceMap();
    if (!parts.IsMember(instance)) return;
    Crop(parts.Get(instance).Get(), source, coords, elements, crop);
}

void inp_SurfaceVisitor::Crop(inpM_AssemblyInstanceSurface& surface,
                              inpM_AssemblyInstanceSurface const& source,
                              inpM_InstanceMap<inp_MapInt2Element> const& elements,
                              inp_CoordMap const& coords, inp_CropDefinition const& crop) {
    inpM_AssemblyInstanceSurface const held = source;  // source may be the surface itself
    held.ConstGetInstance2PartInstanceSurfaceMap().ForEachSorted(
        [&](cow_String const& instance, inpM_PartInstanceSurfaceHandle const& part) {
            if (!coords.IsMember(instance) || !elements.IsMember(instance)) return;
            inpM_InstanceMap<inp_MapInt2Element> const& level = elements.ConstGetMap(instance);
            if (!level.HasValue()) return;
            Crop(surface, instance, *part, coords.ConstGet(instance).ConstGet(), level.ConstGet(),
                 crop);
        });
    Crop(surface.GetAssemblyNodeAreaSurface(),
         held.ConstGetAssemblyNodeAreaSurface().ConstGetNodeAreaList(), coords.ConstGet(),
         inp_MapInt2Element(), crop);
}
