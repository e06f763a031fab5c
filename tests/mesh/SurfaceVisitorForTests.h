#pragma once
// The smallest concrete surface visitor, doing what the level-specific
// subclasses do: inside a part or instance it reads a surface into the scope
// (combined or plain) and stores an analytical surface as one; at the
// assembly level it reads an assembly surface and stores it under its name.
// Tests of the surface visitor, and tests that run it over whole decks, use
// it as it is; the scope setters serve tests that call the readers directly.

#include <string>
#include <vector>

#include "mesh/inp_SurfaceVisitor.h"

class SurfaceVisitorForTests : public inp_SurfaceVisitor {
  public:
    using inp_SurfaceVisitor::inp_SurfaceVisitor;
    SurfaceVisitorForTests()
        : inp_SurfaceVisitor(inpM_SetMap(), inpM_SetMap(), inpM_InstanceMap<inp_MapInt2Element>(),
                             inp_CoordMap()) {}

    void VisitAnalyticalSurface(inp_Keyword& keyword) override {
        inpM_PartInstanceSurfaceHandle surface = CreateSurface(inpM_AnalyticalSurfaceType);
        surface.Get().SetInternal(keyword.HasParameter("internal"));
        m_surfaceMap.InsertPartInstanceSurface(CurrentScope(), nameOf(keyword), surface);
    }
    void VisitSurfaceDefinition(inp_Keyword& keyword) override {
        bool const combine = keyword.HasParameter("combine");
        if (!CurrentScope().IsEmpty()) {
            if (combine)
                CreateCombinedInstanceLevelSurface(keyword);
            else
                CreateInstanceLevelSurface(keyword);
            return;
        }
        m_surfaceMap.InsertAssemblyInstanceSurface(
            nameOf(keyword), combine ? CreateCombinedAssemblyLevelSurface(keyword)
                                     : CreateAssemblyLevelSurface(keyword));
    }

    void InPart(char const* part) {
        m_partName = part;
        m_instanceName = cow_String();
    }
    void AtAssembly() {
        m_partName = cow_String();
        m_instanceName = cow_String();
    }
    bool IsNodeSurface() const { return NodeSurface(); }
    std::vector<std::string> Errors() const { return texts(GetErrorList()); }
    std::vector<std::string> Warnings() const { return texts(GetWarningList()); }

  private:
    static cow_String nameOf(inp_Keyword const& keyword) {
        inp_Item const* name = keyword.Parameters().Find("name");
        return name == nullptr ? cow_String() : name->AsString();
    }
    static std::vector<std::string> texts(cow_List<atr_String> const& list) {
        std::vector<std::string> result;
        for (atr_String const& text : list) result.emplace_back(text.View());
        return result;
    }
};
