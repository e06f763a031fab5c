#include "continuation/inp_ImportKwdData.h"

#include "mesh/inp_Utils.h"
#include "support/utl_CommandLine.h"

namespace {

cow_String parameterText(inp_Keyword const& keyword, char const* name, char const* fallback) {
    inp_Item const* value = keyword.Parameters().Find(name);
    return value == nullptr ? cow_String(fallback) : value->AsString();
}

bool isWord(inp_Keyword const& keyword, char const* name, char const* word) {
    return parameterText(keyword, name, "") == cow_String(word);
}

void readInteger(inp_Keyword const& keyword, char const* name, int& field) {
    inp_Item const* value = keyword.Parameters().Find(name);
    if (value != nullptr && value->Type() == inp_Types::inp_INTEGER) field = value->AsInt();
}

void warnAlreadyDefined(inp_Keyword const& keyword, char const* format, cow_String const& value,
                        cow_List<atr_String>& warnings) {
    warnings.Append(inp_Utils::MessageInKeyword(keyword, atr(format, value)));
}

}  // namespace

bool inp_ImportKwdData::readFromKw(inp_Keyword const& keyword) {
    if (!keyword.HasParameter("referenceconfiguration")) return false;
    bool const instance = keyword.Is(inp_kw_Instance);
    if (keyword.Is(inp_kw_Part) || (instance && keyword.HasParameter("part"))) {
        m_componentKind = kPart;
        m_componentName = parameterText(keyword, "part", "");
    } else if (instance && keyword.HasParameter("instance")) {
        m_componentKind = kInstance;
        m_componentName = parameterText(keyword, "instance", "");
    } else if (keyword.Is(inp_kw_Assembly)) {
        m_componentKind = kAssembly;
        m_componentName = parameterText(keyword, "assembly", "");
    } else {
        return false;
    }
    m_initialized = true;
    if (isWord(keyword, "referenceconfiguration", "YES") ||
        isWord(keyword, "referenceconfiguration", "UPDATED"))
        m_update = true;
    if (isWord(keyword, "state", "NO")) m_state = false;
    readLibraryParameter(keyword);
    readInteger(keyword, "step", m_step);
    readInteger(keyword, "increment", m_increment);
    readInteger(keyword, "interval", m_interval);
    readInteger(keyword, "iteration", m_iteration);
    return true;
}

void inp_ImportKwdData::readImportOption(inp_Keyword const& keyword, cow_List<atr_String>& errors,
                                         cow_List<atr_String>&) {
    m_initialized = true;
    if (isWord(keyword, "update", "YES")) m_update = true;
    if (isWord(keyword, "state", "NO")) m_state = false;
    struct Field {
        char const* name;
        char const* capitals;
        int& value;
    };
    Field const fields[] = {{"step", "STEP", m_step},
                            {"increment", "INCREMENT", m_increment},
                            {"interval", "INTERVAL", m_interval},
                            {"iteration", "ITERATION", m_iteration}};
    for (Field const& field : fields) {
        inp_Item const* value = keyword.Parameters().Find(field.name);
        if (value == nullptr || value->Type() != inp_Types::inp_INTEGER) continue;
        if (value->AsInt() < 0) {
            errors.Append(inp_Utils::MessageInKeyword(
                keyword, atr("The value of \"%s\" parameter is not valid. It will be ignored.",
                             field.capitals)));
            continue;
        }
        field.value = value->AsInt();
    }
}

void inp_ImportKwdData::readLibraryParameter(inp_Keyword const& keyword) {
    if (keyword.HasParameter("library")) m_libraryName = parameterText(keyword, "library", "");
}

// The first record's values stand; each difference is one warning. For the
// iteration, whether the keyword's value reads "default" is asked of the
// other record's interval, not its iteration: the established wording.
bool inp_ImportKwdData::compareSettings(inp_ImportKwdData const& other, inp_Keyword const& keyword,
                                        cow_String const& updateValue,
                                        cow_List<atr_String>& warnings) const {
    int const before = warnings.Length();
    if (m_update != other.m_update)
        warnAlreadyDefined(keyword,
                           "The \"UPDATE\" parameter has been already defined. The current value "
                           "\"%s\" will be ignored.",
                           updateValue, warnings);
    if (m_state != other.m_state)
        warnAlreadyDefined(keyword,
                           "The \"STATE\" parameter has been already defined. The current value "
                           "\"%s\" will be ignored.",
                           parameterText(keyword, "state", "default"), warnings);
    struct Field {
        int mine;
        int theirs;
        int theirsForDefault;
        char const* name;
        char const* format;
    };
    Field const fields[] = {
        {m_step, other.m_step, other.m_step, "step",
         "The \"STEP\" parameter has been already defined. The current value \"%s\" will be "
         "ignored."},
        {m_increment, other.m_increment, other.m_increment, "increment",
         "The \"INCREMENT\" parameter has been already defined. The current value \"%s\" will be "
         "ignored."},
        {m_interval, other.m_interval, other.m_interval, "interval",
         "The \"INTERVAL\" parameter has been already defined. The current value \"%s\" will be "
         "ignored."},
        {m_iteration, other.m_iteration, other.m_interval, "iteration",
         "The \"ITERATION\" parameter has been already defined. The current value \"%s\" will be "
         "ignored."}};
    for (Field const& field : fields) {
        if (field.mine == field.theirs) continue;
        cow_String const value = field.theirsForDefault == -1
                                     ? cow_String("default")
                                     : parameterText(keyword, field.name, "default");
        warnAlreadyDefined(keyword, field.format, value, warnings);
    }
    return warnings.Length() == before;
}

bool inp_ImportKwdData::checkCompatibilityWith(inp_ImportKwdData const& other,
                                               inp_Keyword const& keyword, cow_List<atr_String>&,
                                               cow_List<atr_String>& warnings) const {
    if (m_libraryName.IsEmpty()) return true;
    bool compatible = true;
    if (m_libraryName != other.m_libraryName) {
        warnAlreadyDefined(keyword,
                           "The \"LIBRARY\" parameter has been already defined. The current value "
                           "\"%s\" will be ignored.",
                           parameterText(keyword, "library", "default"), warnings);
        compatible = false;
    }
    cow_String const update = parameterText(keyword, "referenceconfiguration", "default");
    return compareSettings(other, keyword, update, warnings) && compatible;
}

bool inp_ImportKwdData::checkImportCompatibility(inp_ImportKwdData const& other,
                                                 inp_Keyword const& keyword, cow_List<atr_String>&,
                                                 cow_List<atr_String>& warnings) const {
    if (!m_initialized || !other.m_initialized) return true;
    cow_String const update(other.m_update ? "YES" : "NO");
    return compareSettings(other, keyword, update, warnings);
}

bool inp_ImportKwdData::checkLibraryCompatibility(inp_ImportKwdData const& other,
                                                  inp_Keyword const& keyword, cow_List<atr_String>&,
                                                  cow_List<atr_String>& warnings) const {
    if (m_libraryName.IsEmpty() || m_libraryName == other.m_libraryName) return true;
    warnAlreadyDefined(keyword,
                       "The \"LIBRARY\" parameter has been already defined. The current value "
                       "\"%s\" will be ignored.",
                       parameterText(keyword, "library", "default"), warnings);
    return false;
}

ZELBasUtlFilePath const& inp_ImportKwdData::getLibraryPath() {
    if (!m_libraryPath.FileName().IsEmpty()) return m_libraryPath;
    cow_String name(m_libraryName);
    name.append(".odb");
    m_libraryPath.SetFilePath(utl_CommandLine::Instance().ConstGetValue("indir"), name);
    return m_libraryPath;
}

cow_Map<cow_String, inp_Item> inp_ImportKwdData::getImportKwdParameterMap() const {
    cow_Map<cow_String, inp_Item> parameters;
    parameters.Insert("update", inp_Item(cow_String(m_update ? "YES" : "NO")));
    parameters.Insert("state", inp_Item(cow_String(m_state ? "YES" : "NO")));
    struct Field {
        char const* name;
        int value;
    };
    for (Field const& field : {Field{"step", m_step}, Field{"increment", m_increment},
                               Field{"interval", m_interval}, Field{"iteration", m_iteration}})
        if (field.value != -1) parameters.Insert(field.name, inp_Item(field.value));
    return parameters;
}
