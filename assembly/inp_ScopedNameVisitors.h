#pragma once
// Fully scoped references in a deck of parts. A name written as
// assembly.instance.name (as a restart or a written-back model has it) is
// shortened to instance.name, the form every later stage reads, when its
// first piece is the deck's assembly. Only references at model level are
// rewritten: outside every part, assembly, instance and step, where a
// reference may reach into the assembly by its full name.

#include "assembly/inp_DistributionFixupVisitor.h"
#include "assembly/inp_MaterialFixupVisitor.h"
#include "assembly/inp_OrientationFixupVisitor.h"
#include "assembly/inp_RebarFixupVisitor.h"
#include "assembly/inp_SetFixupVisitor.h"
#include "assembly/inp_SurfaceFixupVisitor.h"

// The rule of every visitor below, for a datum met by `visitor` where it
// stands now: the text after the first period when the text before it is
// `assemblyName`, else the datum as it is.
cow_String inp_StripAssemblyName(inp_Visitor const& visitor, cow_String const& datum,
                                 cow_String const& assemblyName);

class inp_ScopedNameSetVisitor : public inp_SetFixupVisitor {
  public:
    explicit inp_ScopedNameSetVisitor(cow_String const& assemblyName);

    cow_String FixupIdOrSet(inp_Keyword const& keyword, cow_String const& datum,
                            inpM_SetMap const& sets, inpM_IdMap const& ids,
                            cow_String const& assemblyName, cow_String const& instanceName,
                            cow_String const& partName, inp_SetType type,
                            cow_String const& parameterName) override;

    // The members of a set of sets; with GENERATE, the first and last label.
    void VisitNset(inp_Keyword& keyword) override;
    void VisitElset(inp_Keyword& keyword) override;

  private:
    cow_String m_deckAssemblyName;
};

class inp_ScopedNameSurfaceVisitor : public inp_SurfaceFixupVisitor {
  public:
    // `restart`: the deck continues an earlier job, whose surfaces may be
    // built of fully scoped ones.
    explicit inp_ScopedNameSurfaceVisitor(cow_String const& assemblyName, bool restart = false);

    cow_String FixupSurfaceName(cow_String const& name, cow_String const& assemblyName,
                                cow_String const& instanceName,
                                cow_String const& partName) override;
    // A new job: only the surface's own name.
    void VisitSurface(inp_Keyword& keyword) override;

  private:
    cow_String m_deckAssemblyName;
    bool m_restart;
};

class inp_ScopedNameDistributionVisitor : public inp_DistributionFixupVisitor {
  public:
    explicit inp_ScopedNameDistributionVisitor(cow_String const& assemblyName)
        : m_deckAssemblyName(assemblyName) {}
    cow_String FixupDistributionName(cow_String const& name) override;

  private:
    cow_String m_deckAssemblyName;
};

class inp_ScopedNameOrientationVisitor : public inp_OrientationFixupVisitor {
  public:
    explicit inp_ScopedNameOrientationVisitor(cow_String const& assemblyName)
        : m_deckAssemblyName(assemblyName) {}
    cow_String FixupOrientationName(cow_String const& name) override;

  private:
    cow_String m_deckAssemblyName;
};

class inp_ScopedNameRebarVisitor : public inp_RebarFixupVisitor {
  public:
    explicit inp_ScopedNameRebarVisitor(cow_String const& assemblyName)
        : m_deckAssemblyName(assemblyName) {}
    cow_String FixupRebarName(cow_String const& name) override;

  private:
    cow_String m_deckAssemblyName;
};

class inp_ScopedNameMaterialVisitor : public inp_MaterialFixupVisitor {
  public:
    explicit inp_ScopedNameMaterialVisitor(cow_String const& assemblyName)
        : m_deckAssemblyName(assemblyName) {}
    cow_String FixupMaterialName(cow_String const& name) override;

  private:
    cow_String m_deckAssemblyName;
};
