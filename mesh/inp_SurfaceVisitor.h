#pragma once
// The base of the visitors that turn *SURFACE keywords into the surfaces of
// an inpM_SurfaceMap. A surface made inside a part or part instance is an
// inpM_PartInstanceSurface of that scope; one made at the assembly level is
// an inpM_AssemblyInstanceSurface, with a part per instance.
//
// This class reads: the members named by ids, by node or element sets and
// by scoped names (instance.set, instance.id) at the assembly level;
// combined surfaces (COMBINE) from earlier surfaces; cropped surfaces (CROP)
// as an earlier surface cut by a box. Where a keyword counts, and what an
// analytical surface becomes, is for the level-specific subclasses: they
// give VisitAnalyticalSurface and VisitSurfaceDefinition, which calls the
// creator that fits the level, and they store what the assembly creators
// return.
//
// Every fault of the deck becomes an error in the visitor's lists and the
// walk goes on; a surface with missing members is stored with the members
// that were found.

#include "mesh/inp_CoordMap.h"
#include "mesh/inp_CropDefinition.h"
#include "mesh/inp_MapInt2Coord.h"
#include "mesh/inp_MapInt2Element.h"
#include "pipeline/inp_Visitor.h"
#include "support/cow_List.h"
#include "support/cow_String.h"
#include "support/inpM_AssemblyInstanceSurface.h"
#include "support/inpM_InstanceMap.h"
#include "support/inpM_SetMap.h"
#include "support/inpM_Surface.h"
#include "support/inpM_SurfaceMap.h"

class inp_DataArray;

class inp_SurfaceVisitor : public inp_Visitor {
  public:
    // The sets name the members; the elements and nodes serve cropping.
    inp_SurfaceVisitor(inpM_SetMap const& nodeSets, inpM_SetMap const& elementSets,
                       inpM_InstanceMap<inp_MapInt2Element> const& elements,
                       inp_CoordMap const& coords);
    ~inp_SurfaceVisitor() override;

    inpM_SurfaceMap const& ConstGetSurfaceMap() const noexcept { return m_surfaceMap; }
    void setInstancePartNames(inpM_InstanceMap<cow_String> const& names) {
        m_instancePartNames = names;
    }

    void DefaultAction(inp_Keyword& keyword) override;

    // -- the operations subclasses replace or call, in slot order ------------

    // Decides the kind of surface: "ELEMENT" unless TYPE is "NODE",
    // "EULERIANMATERIAL", "XFEM" or an analytical type. EULERIANMATERIAL and
    // XFEM surfaces are not read here. An analytical surface outside a part
    // or instance is an error; inside one it goes to VisitAnalyticalSurface.
    // A COMBINE or CROP surface takes its kind from the first existing
    // surface of the scope that its data names. Everything else goes to
    // VisitSurfaceDefinition, with NodeSurface() telling the kind.
    void VisitSurface(inp_Keyword& keyword) override;
    virtual void VisitAnalyticalSurface(inp_Keyword& keyword) = 0;
    virtual void VisitSurfaceDefinition(inp_Keyword& keyword) = 0;

    // Inside a part or instance: the surface NAME of the scope, stored in the
    // surface map. Each data row is an id or a set name of the scope, with an
    // area (node surface) or a face identifier (element surface) second; with
    // CROP, row 0 names the surface to crop and the box follows. With TYPE
    // CUTTINGSURFACE row 0 holds the cutting data and is passed over (so at
    // every level).
    virtual void CreateInstanceLevelSurface(inp_Keyword& keyword);
    // Inside a part or instance: every value names an earlier surface of the
    // scope. The first one found in a row is added, the rest of the row is
    // combined with the result by COMBINE (UNION, INTERSECTION, DIFFERENCE).
    virtual void CreateCombinedInstanceLevelSurface(inp_Keyword& keyword);
    // At the assembly level: ids and sets of the assembly, scoped sets and
    // ids of instances (instance.set, instance.id), or with CROP an earlier
    // assembly or instance surface. The caller stores the result.
    virtual inpM_AssemblyInstanceSurface CreateAssemblyLevelSurface(inp_Keyword& keyword);
    // At the assembly level: plain names are assembly surfaces, scoped names
    // (instance.surface) surfaces of that instance, combined as above.
    virtual inpM_AssemblyInstanceSurface CreateCombinedAssemblyLevelSurface(inp_Keyword& keyword);

    // -- cropping (mesh/inp_SurfaceCrop.cpp) ------------------------------------
    // Each form shortens its first argument, which must hold a copy of the
    // source already, to what the box keeps. A node stays when the box holds
    // it or when `coords` lacks it; an element face goes when the element's
    // type has that face and none of the face's nodes is in the box (a node
    // without coordinates is not). Elements that `elements` lacks, types
    // without a shape, faces beyond a shape's and invalid face identifiers
    // leave the members alone.

    static void Crop(inpM_NodeAreaSurface& surface, inpM_NodeAreaList const& source,
                     inp_MapInt2Coord const& coords, inp_MapInt2Element const& elements,
                     inp_CropDefinition const& crop);
    static void Crop(inpM_ElementFaceIdSurface& surface, cow_String const& faceId,
                     cow_List<int> const& source, inp_MapInt2Coord const& coords,
                     inp_MapInt2Element const& elements, inp_CropDefinition const& crop);
    // The form above for each face identifier.
    static void Crop(inpM_ElementFaceIdSurface& surface, inpM_FaceIdElementIdsMap const& source,
                     inp_MapInt2Coord const& coords, inp_MapInt2Element const& elements,
                     inp_CropDefinition const& crop);
    static void Crop(inpM_ElementFaceIdSurface& surface, inpM_PartInstanceSurface const& source,
                     inp_MapInt2Coord const& coords, inp_MapInt2Element const& elements,
                     inp_CropDefinition const& crop);
    static void Crop(inpM_NodeAreaSurface& surface, inpM_PartInstanceSurface const& source,
                     inp_MapInt2Coord const& coords, inp_MapInt2Element const& elements,
                     inp_CropDefinition const& crop);
    // By the surface's form; an analytical surface stays as it is.
    static void Crop(inpM_PartInstanceSurface& surface, inpM_PartInstanceSurface const& source,
                     inp_MapInt2Coord const& coords, inp_MapInt2Element const& elements,
                     inp_CropDefinition const& crop);
    // The part of that instance, when the surface has one.
    static void Crop(inpM_AssemblyInstanceSurface& surface, cow_String const& instance,
                     inpM_PartInstanceSurface const& source, inp_MapInt2Coord const& coords,
                     inp_MapInt2Element const& elements, inp_CropDefinition const& crop);
    // Each instance part with the instance's nodes in global position and its
    // elements, then the assembly's own nodes with the assembly's nodes. An
    // instance that the coordinates or the elements lack stays as it is.
    static void Crop(inpM_AssemblyInstanceSurface& surface,
                     inpM_AssemblyInstanceSurface const& source,
                     inpM_InstanceMap<inp_MapInt2Element> const& elements,
                     inp_CoordMap const& coords, inp_CropDefinition const& crop);

  protected:
    // Whether the keyword in hand is a node surface (TYPE=NODE, or a COMBINE
    // or CROP of a node surface); set by VisitSurface.
    bool NodeSurface() const noexcept { return m_nodeSurface; }
    // The part name when it is set, else the instance name.
    cow_String const& CurrentScope() const noexcept {
        return m_partName.IsEmpty() ? m_instanceName : m_partName;
    }

    inpM_SetMap m_nodeSets;
    inpM_SetMap m_elementSets;
    inpM_InstanceMap<inp_MapInt2Element> m_elementMap;
    inp_CoordMap m_coordMap;
    inpM_SurfaceMap m_surfaceMap;
    bool m_nodeSurface = false;
    inpM_InstanceMap<cow_String> m_instancePartNames;
    inpM_SurfaceMap m_partSurfaces;  // for the subclasses

  private:
    class RowReader;

    // The kind of the first surface of the scope that the data names, or `type`.
    cow_String kindOfFirstSurface(inp_Keyword const& keyword, cow_String const& type) const;
    // The scope's own maps; null (or empty) when the maps lack the scope.
    inp_MapInt2Element const* elementsOf(cow_String const& scope) const;
    inp_MapInt2Coord coordsOf(cow_String const& scope) const;
    // The box of the keyword; its warnings join this visitor's.
    inp_CropDefinition readCrop(inp_Keyword const& keyword);

    // Steps of CreateInstanceLevelSurface.
    void addSetOfScope(RowReader& rows, cow_String const& name);
    void cropInScope(inp_Keyword const& keyword, cow_String const& name,
                     inpM_PartInstanceSurfaceHandle& surface, cow_List<cow_String>& missing);

    // Steps of CreateAssemblyLevelSurface, for a first value of one piece
    // and of several.
    void addAssemblyValue(RowReader& rows, inpM_AssemblyInstanceSurface& surface,
                          cow_String const& value);
    void addScopedValue(RowReader& rows, inpM_AssemblyInstanceSurface& surface,
                        cow_String const& value, cow_List<cow_String> const& pieces);
    void cropAssemblySurface(RowReader& rows, inpM_AssemblyInstanceSurface& surface,
                             cow_String const& name);
    void cropInstanceSurface(RowReader& rows, inpM_AssemblyInstanceSurface& surface,
                             cow_String const& instance, cow_String const& name,
                             cow_String const& value);
    // The surface of the instance, sought also with the quotes of both names
    // removed; null when neither exists.
    inpM_PartInstanceSurfaceHandle const* findSurface(cow_String const& instance,
                                                      cow_String const& name) const;

    // The missing names of a keyword, as one error: the title holds the
    // surface's name.
    void reportMissing(inp_Keyword const& keyword, char const* title,
                       cow_List<cow_String> const& names);
};

// The second value of a data row: for a node surface the area, when the
// value there is a number, else 1.0; for an element surface the face
// identifier, folded like every item. A face identifier equal to the one
// `faceId` holds leaves it as it is, so that rows of one face share one
// string.
void GetAreaOrFaceId(bool isNode, double& area, cow_String& faceId, inp_DataArray const& data,
                     int row, int col);
