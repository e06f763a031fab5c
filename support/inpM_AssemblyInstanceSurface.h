#pragma once
#include "support/aio_Stream.h"
#include "support/cow_String.h"
#include "support/inpM_PartInstanceSurfaceMap.h"
#include "support/inpM_Surface.h"

class inpM_IdMap;

// A surface of the assembly level: nodes of the assembly itself, with their
// areas, plus a part surface per instance, each in the ids of its instance.
// Copies are cheap: both parts are copy-on-write.
//
// The set operations work part by part: the assembly's nodes with the other's
// assembly nodes, an instance's surface with the other's surface of the same
// instance name, each by the rules of inpM_PartInstanceSurface.
class inpM_AssemblyInstanceSurface {
  public:
    inpM_AssemblyInstanceSurface() = default;

    inpM_NodeAreaSurface& GetAssemblyNodeAreaSurface() noexcept { return m_assemblyNodes; }
    inpM_NodeAreaSurface const& ConstGetAssemblyNodeAreaSurface() const noexcept {
        return m_assemblyNodes;
    }
    inpM_PartInstanceSurfaceMap& GetInstance2PartInstanceSurfaceMap() noexcept {
        return m_instances;
    }
    inpM_PartInstanceSurfaceMap const& ConstGetInstance2PartInstanceSurfaceMap() const noexcept {
        return m_instances;
    }

    // Union, part by part. An instance new to this surface comes in shared.
    void Add(inpM_AssemblyInstanceSurface const& other);
    // Under the instance: a copy of the surface if the instance is new,
    // otherwise the union with what is there.
    void Add(cow_String const& instance, inpM_PartInstanceSurface const& surface);
    // Nodes of the assembly itself.
    void Add(inpM_NodeAreaSurface const& assemblyNodes);

    // Part by part; an instance that other lacks stays as it is.
    void Difference(inpM_AssemblyInstanceSurface const& other);
    // From that instance's part only, when this surface has the instance.
    void Difference(cow_String const& instance, inpM_PartInstanceSurface const& surface);

    // Part by part; an instance that other lacks is removed.
    void Intersection(inpM_AssemblyInstanceSurface const& other);
    // What both have: other holds members of that instance only, so the
    // assembly's own nodes and every other instance are removed.
    void Intersection(cow_String const& instance, inpM_PartInstanceSurface const& surface);

    // Translates the assembly's nodes through the node map's own level and
    // each instance's part through the nested map of that instance (nodes or
    // elements by the part's form). Missing ids, and all ids of an instance
    // that the map lacks, follow keepMissing as in
    // inpM_PartInstanceSurface::Renumber; no instance entry is removed.
    void Renumber(inpM_IdMap const& nodes, inpM_IdMap const& elements, bool keepMissing);

    void SetInternal(bool internal) noexcept { m_internal = internal; }
    bool IsInternal() const noexcept { return m_internal; }

    // Node-based and spread over more than one level: true when at least two
    // of {the assembly's own nodes, each instance's node surface} have nodes.
    // The assembly's own nodes count as a level of their own, since they
    // belong to no instance. Element faces never make a surface cross-instance.
    bool IsCrossInstanceNodeBasedSurface() const;

    // No assembly nodes and no instance part with members.
    bool IsEmpty() const;

    // "assembly surface, <n> instances" ("(internal)" after "surface" when
    // internal), then "assembly nodes: " and the nodes' Print, then for each
    // instance, ascending, "instance <name>: " and the part's Print.
    void Print(aio_ostream& out) const;

  private:
    inpM_NodeAreaSurface m_assemblyNodes;
    inpM_PartInstanceSurfaceMap m_instances;
    bool m_internal = false;
};
