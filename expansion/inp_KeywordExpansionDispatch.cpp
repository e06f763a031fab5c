// How the expansion stage reaches a keyword's handling: the one table of
// keywords that have a handler of their own, and the table of routes by key
// that Visit reads. Every other keyword is handled by the kind of its schema
// row. Adding a handler is one member and one line in the table.

#include <cstdint>

#include "expansion/inp_KeywordExpansionVisitor.h"
#include "expansion/inp_Schema.h"

// Visit bypasses the base class's handlers, and with them its scope
// following; of its scoped handlers only the three ends (of an assembly, an
// instance, a step) are called, from their own handlers below. A scoped
// handler added to the base class must be decided on here: called from an
// own handler, or bypassed like the other six.
#define INP_EXPANSION_COUNT(name) +1
#define INP_EXPANSION_NOT_COUNTED(name)
static_assert(0 INP_VISITOR_SLOTS(INP_EXPANSION_NOT_COUNTED, INP_EXPANSION_COUNT) == 9,
              "a scoped handler was added to inp_VisitorSlots.h: decide whether expansion "
              "calls it");
#undef INP_EXPANSION_COUNT
#undef INP_EXPANSION_NOT_COUNTED

// -- the keywords with a handler of their own ----------------------------------------------

std::span<inp_KeywordExpansionVisitor::OwnHandler const>
inp_KeywordExpansionVisitor::OwnHandlers() {
    using V = inp_KeywordExpansionVisitor;
    static constexpr OwnHandler kOwnHandlers[] = {
        // Model structure.
        {inp_kw_Part, &V::HandlePart},
        {inp_kw_Assembly, &V::HandleAssembly},
        {inp_kw_Instance, &V::HandleInstance},
        {inp_kw_EndPart, &V::HandleEndPart},
        {inp_kw_EndAssembly, &V::HandleEndAssembly},
        {inp_kw_EndInstance, &V::HandleEndInstance},
        {inp_kw_EndStep, &V::HandleEndStep},
        {inp_kw_Step, &V::HandleStep},
        {inp_kw_Restart, &V::HandleRestart},
        {inp_kw_Import, &V::HandleImport},
        {inp_kw_Include, &V::HandleKeywordWithRequiredParameters},
        {inp_kw_Conflicts, &V::HandleConflicts},
        {inp_kw_DisplayBody, &V::HandleDisplayBody},
        {inp_kw_CoSimulationControls, &V::HandleCoSimulationControls},
        {inp_kw_IntegratedOutputSection, &V::HandleIntegratedOutputSection},
        // Mesh, sets and surfaces.
        {inp_kw_Node, &V::HandleNode},
        {inp_kw_Element, &V::HandleElement},
        {inp_kw_Nset, &V::HandleNset},
        {inp_kw_Elset, &V::HandleElset},
        {inp_kw_TimePoints, &V::HandleTimePoints},
        {inp_kw_Surface, &V::HandleSurface},
        {inp_kw_Nmap, &V::HandleNmap},
        {inp_kw_MatrixInput, &V::HandleMatrixInput},
        // Names that must start with a letter.
        {inp_kw_Material, &V::HandleMaterial},
        {inp_kw_Boundary, &V::HandleBoundary},
        // Refused in an assembly model, always or on a condition of their own.
        {inp_kw_MatrixAssemble, &V::HandleAssemblyModelRule},
        {inp_kw_SubstructureCopy, &V::HandleAssemblyModelRule},
        {inp_kw_SubstructureDelete, &V::HandleAssemblyModelRule},
        {inp_kw_SubstructureDirectory, &V::HandleAssemblyModelRule},
        {inp_kw_SubstructureGenerate, &V::HandleAssemblyModelRule},
        {inp_kw_SubstructurePath, &V::HandleAssemblyModelRule},
        {inp_kw_SubstructureProperty, &V::HandleAssemblyModelRule},
        {inp_kw_SymmetricModelGeneration, &V::HandleAssemblyModelRule},
        {inp_kw_SymmetricResultsTransfer, &V::HandleAssemblyModelRule},
        {inp_kw_UserElement, &V::HandleAssemblyModelRule},
        {inp_kw_Elastic, &V::HandleAssemblyModelRule},
        {inp_kw_Expansion, &V::HandleAssemblyModelRule},
        {inp_kw_ParameterShapeVariation, &V::HandleParameterShapeVariation},
        {inp_kw_DesignShapeVariation, &V::HandleParameterShapeVariation},
        // Required parameters.
        {inp_kw_Capacity, &V::HandleKeywordWithRequiredParameters},
        {inp_kw_ConnectorDamageEvolution, &V::HandleKeywordWithRequiredParameters},
        {inp_kw_ConnectorDerivedComponent, &V::HandleKeywordWithRequiredParameters},
        {inp_kw_ContactClearance, &V::HandleKeywordWithRequiredParameters},
        {inp_kw_Fastener, &V::HandleKeywordWithRequiredParameters},
        {inp_kw_FastenerProperty, &V::HandleKeywordWithRequiredParameters},
        {inp_kw_HeatCap, &V::HandleKeywordWithRequiredParameters},
        {inp_kw_SpotWeld, &V::HandleKeywordWithRequiredParameters},
        {inp_kw_SpotWeldInteraction, &V::HandleKeywordWithRequiredParameters},
        {inp_kw_SpotWeldProperty, &V::HandleKeywordWithRequiredParameters},
        {inp_kw_SurfacePropertyAssignment, &V::HandleKeywordWithRequiredParameters},
        {inp_kw_Transform, &V::HandleKeywordWithRequiredParameters},
        {inp_kw_Amplitude, &V::HandleDataFileKeywordWithRequiredParameters},
        {inp_kw_SpatialDistribution, &V::HandleDataFileKeywordWithRequiredParameters},
        // Data lines that may come from an `input` file.
        {inp_kw_Aqua, &V::HandleDataFileKeyword},
        {inp_kw_Clearance, &V::HandleDataFileKeyword},
        {inp_kw_Correlation, &V::HandleDataFileKeyword},
        {inp_kw_Distribution, &V::HandleDataFileKeyword},
        {inp_kw_Equation, &V::HandleDataFileKeyword},
        {inp_kw_Field, &V::HandleDataFileKeyword},
        {inp_kw_ImpedanceProperty, &V::HandleDataFileKeyword},
        {inp_kw_Imperfection, &V::HandleDataFileKeyword},
        {inp_kw_MassFlowRate, &V::HandleDataFileKeyword},
        {inp_kw_Matrix, &V::HandleDataFileKeyword},
        {inp_kw_Mpc, &V::HandleDataFileKeyword},
        {inp_kw_NodalEnergyRate, &V::HandleDataFileKeyword},
        {inp_kw_NodalThickness, &V::HandleDataFileKeyword},
        {inp_kw_PressureStress, &V::HandleDataFileKeyword},
        {inp_kw_PsdDefinition, &V::HandleDataFileKeyword},
        {inp_kw_Release, &V::HandleDataFileKeyword},
        {inp_kw_Spectrum, &V::HandleSpectrum},
        {inp_kw_SurfaceFlaw, &V::HandleDataFileKeyword},
        {inp_kw_Temperature, &V::HandleDataFileKeyword},
        {inp_kw_Wave, &V::HandleDataFileKeyword},
        // Values with a logic of their own.
        {inp_kw_Plastic, &V::HandlePlastic},
        {inp_kw_InitialConditions, &V::HandleInitialConditions},
        {inp_kw_Permeability, &V::HandlePermeability},
        {inp_kw_ContactPair, &V::HandleContactPair},
        {inp_kw_ContactInclusions, &V::HandleContactInclusions},
        {inp_kw_ConnectorSection, &V::HandleConnectorSection},
        {inp_kw_RigidBody, &V::HandleRigidBody},
        {inp_kw_Coupling, &V::HandleCoupling},
        // Rows with a flag to set.
        {inp_kw_Dynamic, &V::HandleDynamic},
        {inp_kw_RigidSurface, &V::HandleRigidSurface},
        {inp_kw_Parameter, &V::HandleParameter},
    };
    return kOwnHandlers;
}

bool inp_KeywordExpansionVisitor::HasHandlerOfItsOwn(int key) {
    for (OwnHandler const& own : OwnHandlers())
        if (own.key == key) return true;
    return false;
}

// -- the lookup by key -------------------------------------------------------------------------

// Keys are sparse (up to five digits for some 550 keywords), so a small
// index by key leads into a dense array of routes: two loads a keyword, and
// both arrays stay in cache over a walk. Built once, read-only after. Index 0
// of the routes is no route: the blanked keyword, the end of file, the model
// root and every number that is no key.
class inp_KeywordExpansionVisitor::RouteTable {
  public:
    RouteTable() : m_routeOfKey(inp_keywordKeyLimit, kNoRoute) {
        m_routes.push_back({nullptr, nullptr});
#define INP_EXPANSION_ADD_ROUTE(camel, name, number) add(inp_kw_##camel);
        INP_KEYWORDS(INP_EXPANSION_ADD_ROUTE)
#undef INP_EXPANSION_ADD_ROUTE
        // *MODAL PRINT takes the options of *PRINT and is handled with it.
        m_routeOfKey[inp_kw_ModalPrint] = m_routeOfKey[inp_kw_Print];
    }

    Route const* Of(int key) const {
        if (key < 0 || key >= inp_keywordKeyLimit) return nullptr;
        std::uint16_t const route = m_routeOfKey[static_cast<size_t>(key)];
        return route == kNoRoute ? nullptr : &m_routes[route];
    }

  private:
    static constexpr std::uint16_t kNoRoute = 0;

    void add(inp_KeywordEnm key) {
        if (key == inp_kw_UndefinedKeyword || key == inp_kw_Eof || key == inp_kw_Model) return;
        inp_SchemaRow const* row = inp_Schema::Find(key);
        m_routeOfKey[static_cast<size_t>(key)] = static_cast<std::uint16_t>(m_routes.size());
        m_routes.push_back({row, handlerOf(key, row)});
    }

    static Handler handlerOf(inp_KeywordEnm key, inp_SchemaRow const* row) {
        for (OwnHandler const& own : OwnHandlers())
            if (own.key == key) return own.handler;
        if (!row) return &inp_KeywordExpansionVisitor::ExpandAsDefault;
        switch (row->kind) {
            case inp_SchemaKind::Row:
            case inp_SchemaKind::Logic:
                return &inp_KeywordExpansionVisitor::ExpandByRow;
            case inp_SchemaKind::Untouched:
                return &inp_KeywordExpansionVisitor::ExpandNothing;
            case inp_SchemaKind::NoParameters:
            case inp_SchemaKind::EndScope:
                break;
        }
        return &inp_KeywordExpansionVisitor::ExpandAsDefault;
    }

    std::vector<std::uint16_t> m_routeOfKey;
    std::vector<Route> m_routes;
};

inp_KeywordExpansionVisitor::Route const* inp_KeywordExpansionVisitor::RouteOf(int key) {
    static RouteTable const table;
    return table.Of(key);
}
