#pragma once
// What a continuation job imports of an earlier analysis, and from where: a
// part, an instance or the assembly, in its deformed state, with or without
// its material state, at a given step, increment, interval or iteration of
// the old job (the library). Filled from the keyword interface (*PART,
// *INSTANCE or *ASSEMBLY with REFERENCE CONFIGURATION) or from an *IMPORT
// option; a second record that disagrees with the first is reported and
// ignored: the first record's values stand.

#include "deck/inp_Item.h"
#include "deck/inp_Keyword.h"
#include "support/ZELBasUtlFilePath.h"
#include "support/atr_String.h"
#include "support/cow_List.h"
#include "support/cow_Map.h"
#include "support/cow_String.h"

class inp_ImportKwdData {
  public:
    enum ComponentKind : int { kNone = 0, kPart = 1, kInstance = 2, kAssembly = 3 };

    // The keyword interface: false, and the record untouched, for a keyword
    // without REFERENCE CONFIGURATION or one that names no component.
    bool readFromKw(inp_Keyword const& keyword);
    // An *IMPORT option; a negative step, increment, interval or iteration
    // is reported on `errors` and ignored.
    void readImportOption(inp_Keyword const& keyword, cow_List<atr_String>& errors,
                          cow_List<atr_String>& warnings);
    void readLibraryParameter(inp_Keyword const& keyword);

    // Each setting of this record that `other` gives otherwise is warned
    // about, as given on `keyword`; false if any was. Only when this record
    // has a library.
    bool checkCompatibilityWith(inp_ImportKwdData const& other, inp_Keyword const& keyword,
                                cow_List<atr_String>& errors, cow_List<atr_String>& warnings) const;
    // The same without the library, for two initialized records.
    bool checkImportCompatibility(inp_ImportKwdData const& other, inp_Keyword const& keyword,
                                  cow_List<atr_String>& errors,
                                  cow_List<atr_String>& warnings) const;
    // The library alone.
    bool checkLibraryCompatibility(inp_ImportKwdData const& other, inp_Keyword const& keyword,
                                   cow_List<atr_String>& errors,
                                   cow_List<atr_String>& warnings) const;

    void setInstanceName(cow_String const& name) { m_componentName = name; }
    void setLibraryName(cow_String const& name) { m_libraryName = name; }
    // The old job's results file: "<library>.odb" in the directory of the
    // command line value "indir"; made once.
    ZELBasUtlFilePath const& getLibraryPath();
    // The settings as keyword parameters: update and state ("YES" or "NO"),
    // and step, increment, interval and iteration where given.
    cow_Map<cow_String, inp_Item> getImportKwdParameterMap() const;
    bool isInitializedWithData() const { return m_initialized; }

    int ComponentKind() const { return m_componentKind; }
    bool Update() const { return m_update; }
    bool State() const { return m_state; }
    int Step() const { return m_step; }
    int Increment() const { return m_increment; }
    int Interval() const { return m_interval; }
    int Iteration() const { return m_iteration; }
    cow_String const& ComponentName() const { return m_componentName; }
    cow_String const& LibraryName() const { return m_libraryName; }

  private:
    // The comparisons from update on; `updateValue` is the text the keyword
    // gives its update setting by.
    bool compareSettings(inp_ImportKwdData const& other, inp_Keyword const& keyword,
                         cow_String const& updateValue, cow_List<atr_String>& warnings) const;

    int m_componentKind = kNone;
    bool m_update = false;
    bool m_state = true;
    bool m_initialized = false;
    int m_step = -1;
    int m_increment = -1;
    int m_interval = -1;
    int m_iteration = -1;
    cow_String m_componentName;
    cow_String m_libraryName;
    ZELBasUtlFilePath m_libraryPath;
};
