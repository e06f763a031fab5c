#include "tools/fedeck_Vtu.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "tools/fedeck_AssembledMesh.h"
#include "tools/fedeck_Base64.h"

namespace {

template <class T>
constexpr char const* vtkTypeName();
template <>
constexpr char const* vtkTypeName<double>() {
    return "Float64";
}
template <>
constexpr char const* vtkTypeName<std::int32_t>() {
    return "Int32";
}
template <>
constexpr char const* vtkTypeName<std::uint8_t>() {
    return "UInt8";
}

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

class VtuWriter {
  public:
    VtuWriter(std::FILE* file, fedeck_AssembledMesh const& mesh, fedeck_VtuOptions const& options)
        : m_file(file), m_mesh(mesh), m_options(options), m_base64(file) {
        m_totalBytes = mesh.coordinates.size() * 8 + mesh.connectivity.size() * 4 +
                       mesh.CellCount() * 17 + mesh.PointCount() * 8 + 1;
    }

    void Write() {
        text(
            "<?xml version=\"1.0\"?>\n"
            "<VTKFile type=\"UnstructuredGrid\" version=\"1.0\" byte_order=\"LittleEndian\" "
            "header_type=\"UInt64\">\n<UnstructuredGrid>\n");
        writeFieldData();
        text("<Piece NumberOfPoints=\"").number(m_mesh.PointCount());
        text("\" NumberOfCells=\"").number(m_mesh.CellCount()).text("\">\n<Points>\n");
        array<double>(nullptr, 3, m_mesh.coordinates);
        text("</Points>\n<Cells>\n");
        array<std::int32_t>("connectivity", 1, m_mesh.connectivity);
        array<std::int32_t>("offsets", 1, m_mesh.offsets);
        array<std::uint8_t>("types", 1, m_mesh.cellTypes);
        text("</Cells>\n<PointData>\n");
        array<std::int32_t>("node_label", 1, m_mesh.nodeLabels);
        array<std::int32_t>("instance", 1, m_mesh.pointInstances);
        writeSets(m_mesh.nodeSets, "nset:", m_mesh.PointCount());
        text("</PointData>\n<CellData>\n");
        array<std::int32_t>("element_label", 1, m_mesh.elementLabels);
        array<std::int32_t>("instance", 1, m_mesh.cellInstances);
        array<std::int32_t>("element_type", 1, m_mesh.cellElementTypes);
        writeSets(m_mesh.elementSets, "elset:", m_mesh.CellCount());
        text("</CellData>\n</Piece>\n</UnstructuredGrid>\n</VTKFile>\n");
    }

  private:
    VtuWriter& text(std::string_view part) {
        std::fwrite(part.data(), 1, part.size(), m_file);
        return *this;
    }

    template <class T>
    VtuWriter& number(T value) {
        char digits[32];
        auto const end = std::to_chars(digits, digits + sizeof digits, value).ptr;
        return text(std::string_view(digits, static_cast<std::size_t>(end - digits)));
    }

    // An attribute value: what would end it or start markup is escaped.
    VtuWriter& attribute(std::string_view value) {
        for (char const c : value) {
            switch (c) {
                case '&':
                    text("&amp;");
                    break;
                case '<':
                    text("&lt;");
                    break;
                case '>':
                    text("&gt;");
                    break;
                case '"':
                    text("&quot;");
                    break;
                default:
                    std::fputc(c, m_file);
            }
        }
        return *this;
    }

    // The lists of names the index arrays point into, one name per line.
    void writeFieldData() {
        std::vector<std::uint8_t> instances = joined(m_mesh.instanceNames);
        std::vector<std::uint8_t> types = joined(m_mesh.elementTypeNames);
        if (instances.empty() && types.empty()) return;
        text("<FieldData>\n");
        if (!instances.empty()) array<std::uint8_t>("instance_names", 1, instances, true);
        if (!types.empty()) array<std::uint8_t>("element_type_names", 1, types, true);
        text("</FieldData>\n");
    }

    static std::vector<std::uint8_t> joined(std::vector<std::string> const& names) {
        std::vector<std::uint8_t> bytes;
        for (std::string const& name : names) {
            bytes.insert(bytes.end(), name.begin(), name.end());
            bytes.push_back('\n');
        }
        return bytes;
    }

    // One 0/1 array per set, built in one buffer that is cleared after each.
    void writeSets(std::vector<fedeck_AssembledMesh::Set> const& sets, std::string_view prefix,
                   std::size_t size) {
        std::vector<std::uint8_t> flags(size, 0);
        for (fedeck_AssembledMesh::Set const& set : sets) {
            for (std::int32_t const member : set.members) flags[std::size_t(member)] = 1;
            std::string name(prefix);
            name.append(set.name);
            array<std::uint8_t>(name.c_str(), 1, flags);
            for (std::int32_t const member : set.members) flags[std::size_t(member)] = 0;
        }
    }

    template <class T>
    void array(char const* name, int components, std::span<T const> values,
               bool fieldData = false) {
        text("<DataArray type=\"").text(vtkTypeName<T>()).text("\"");
        if (name != nullptr) text(" Name=\"").attribute(name).text("\"");
        if (components > 1) text(" NumberOfComponents=\"").number(components).text("\"");
        if (fieldData) text(" NumberOfTuples=\"").number(values.size()).text("\"");
        text(m_options.ascii ? " format=\"ascii\">\n" : " format=\"binary\">\n");
        if (m_options.ascii)
            asciiValues(values, components);
        else
            binaryValues(values);
        text("\n</DataArray>\n");
        reportProgress(values.size_bytes());
    }

    template <class T>
    void array(char const* name, int components, std::vector<T> const& values,
               bool fieldData = false) {
        array(name, components, std::span<T const>(values), fieldData);
    }

    // The byte count (the header), then the bytes, as one base64 stream.
    template <class T>
    void binaryValues(std::span<T const> values) {
        std::uint64_t const bytes = values.size_bytes();
        m_base64.Write(&bytes, sizeof bytes);
        m_base64.Write(values.data(), values.size_bytes());
        m_base64.Finish();
    }

    // A tuple per line; numbers in the shortest form that reads back the same.
    template <class T>
    void asciiValues(std::span<T const> values, int components) {
        for (std::size_t i = 0; i < values.size(); ++i) {
            if (i > 0) text(i % std::size_t(components) == 0 ? "\n" : " ");
            if constexpr (sizeof(T) == 1)
                number(int(values[i]));
            else
                number(values[i]);
        }
    }

    void reportProgress(std::size_t bytes) {
        m_writtenBytes += bytes;
        if (m_options.progress)
            m_options.progress(std::min(1.0, double(m_writtenBytes) / double(m_totalBytes)));
    }

    std::FILE* m_file;
    fedeck_AssembledMesh const& m_mesh;
    fedeck_VtuOptions const& m_options;
    fedeck_Base64Writer m_base64;
    std::size_t m_totalBytes = 1;
    std::size_t m_writtenBytes = 0;
};

}  // namespace

std::string fedeck_WriteVtu(fedeck_AssembledMesh const& mesh, std::string const& path,
                            fedeck_VtuOptions const& options) {
    // The buffer outlives the file, whose closing writes out the last of it.
    std::vector<char> buffer(1 << 20);
    std::unique_ptr<std::FILE, FileCloser> file(std::fopen(path.c_str(), "wb"));
    if (!file) return "cannot open " + path + " for writing: " + std::strerror(errno);
    std::setvbuf(file.get(), buffer.data(), _IOFBF, buffer.size());
    auto writer = std::make_unique<VtuWriter>(file.get(), mesh, options);
    writer->Write();
    bool const failed = std::ferror(file.get()) != 0;
    int const error = errno;
    if (std::fclose(file.release()) != 0 || failed)
        return "cannot write " + path + ": " + std::strerror(failed ? error : errno);
    return std::string();
}
