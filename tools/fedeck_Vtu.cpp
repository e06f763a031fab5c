#include "tools/fedeck_Vtu.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <memory>
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
        m_totalBytes =
            mesh.PointCount() * 32 + mesh.ConnectivitySize() * 4 + mesh.CellCount() * 17 + 1;
    }

    void Write() {
        text(
            "<?xml version=\"1.0\"?>\n"
            "<VTKFile type=\"UnstructuredGrid\" version=\"1.0\" byte_order=\"LittleEndian\" "
            "header_type=\"UInt64\">\n<UnstructuredGrid>\n");
        writeFieldData();
        text("<Piece NumberOfPoints=\"").number(m_mesh.PointCount());
        text("\" NumberOfCells=\"").number(m_mesh.CellCount()).text("\">\n<Points>\n");
        pointArray<double>(nullptr, 3, [](Point const& p, auto put) {
            put(p.x);
            put(p.y);
            put(p.z);
        });
        text("</Points>\n<Cells>\n");
        writeCells();
        text("</Cells>\n<PointData>\n");
        pointArray<std::int32_t>("node_label", 1, [](Point const& p, auto put) { put(p.label); });
        pointArray<std::int32_t>("instance", 1, [](Point const& p, auto put) { put(p.instance); });
        writeSets(m_mesh.NodeSets(), "nset:", m_mesh.PointCount());
        text("</PointData>\n<CellData>\n");
        cellArray<std::int32_t>("element_label", 1, [](Cell const& c, auto put) { put(c.label); });
        cellArray<std::int32_t>("instance", 1, [](Cell const& c, auto put) { put(c.instance); });
        cellArray<std::int32_t>("element_type", 1,
                                [](Cell const& c, auto put) { put(c.elementType); });
        writeSets(m_mesh.ElementSets(), "elset:", m_mesh.CellCount());
        text("</CellData>\n</Piece>\n</UnstructuredGrid>\n</VTKFile>\n");
    }

  private:
    using Point = fedeck_AssembledMesh::Point;
    using Cell = fedeck_AssembledMesh::Cell;

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

    void writeCells() {
        std::size_t const cells = m_mesh.CellCount();
        array<std::int32_t>("connectivity", 1, m_mesh.ConnectivitySize(), [&](auto put) {
            m_mesh.ForEachCell(
                [&](Cell const& cell) {
                    for (int i = 0; i < cell.pointCount; ++i) put(cell.points[i]);
                },
                true);
        });
        array<std::int32_t>("offsets", 1, cells, [&](auto put) {
            std::int32_t end = 0;
            m_mesh.ForEachCell([&](Cell const& cell) { put(end += cell.pointCount); }, false);
        });
        cellArray<std::uint8_t>("types", 1, [](Cell const& c, auto put) { put(c.vtkType); });
    }

    // The lists of names the index arrays point into, one name per line.
    void writeFieldData() {
        std::vector<std::uint8_t> const instances = joined(m_mesh.InstanceNames());
        std::vector<std::uint8_t> const types = joined(m_mesh.ElementTypeNames());
        if (instances.empty() && types.empty()) return;
        text("<FieldData>\n");
        if (!instances.empty()) vectorArray("instance_names", instances, true);
        if (!types.empty()) vectorArray("element_type_names", types, true);
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
            vectorArray(name.c_str(), flags, false);
            for (std::int32_t const member : set.members) flags[std::size_t(member)] = 0;
        }
    }

    template <class T>
    void vectorArray(char const* name, std::vector<T> const& values, bool fieldData) {
        array<T>(
            name, 1, values.size(),
            [&](auto put) {
                for (T const value : values) put(value);
            },
            fieldData);
    }

    template <class T, class Values>
    void pointArray(char const* name, int components, Values values) {
        array<T>(name, components, m_mesh.PointCount() * std::size_t(components), [&](auto put) {
            m_mesh.ForEachPoint([&](Point const& point) { values(point, put); });
        });
    }

    template <class T, class Values>
    void cellArray(char const* name, int components, Values values) {
        array<T>(name, components, m_mesh.CellCount() * std::size_t(components), [&](auto put) {
            m_mesh.ForEachCell([&](Cell const& cell) { values(cell, put); }, false);
        });
    }

    // One DataArray of `count` values, which `walk` hands to the function
    // it is given, one by one; they go out in chunks.
    template <class T, class Walk>
    void array(char const* name, int components, std::size_t count, Walk walk,
               bool fieldData = false) {
        text("<DataArray type=\"").text(vtkTypeName<T>()).text("\"");
        if (name != nullptr) text(" Name=\"").attribute(name).text("\"");
        if (components > 1) text(" NumberOfComponents=\"").number(components).text("\"");
        if (fieldData) text(" NumberOfTuples=\"").number(count).text("\"");
        text(m_options.ascii ? " format=\"ascii\">\n" : " format=\"binary\">\n");
        if (!m_options.ascii) {
            // The byte count first, then the bytes, as one base64 stream.
            std::uint64_t const bytes = count * sizeof(T);
            m_base64.Write(&bytes, sizeof bytes);
        }
        Chunk<T> chunk(*this, components);
        walk([&chunk](T value) { chunk.Put(value); });
        chunk.Flush();
        if (!m_options.ascii) m_base64.Finish();
        text("\n</DataArray>\n");
        reportProgress(count * sizeof(T));
    }

    // Values gathered into a buffer and written out when it is full: bytes
    // through base64, or numbers as text, a tuple per line.
    template <class T>
    class Chunk {
      public:
        Chunk(VtuWriter& writer, int components) : m_writer(writer), m_components(components) {}
        void Put(T value) {
            m_values[m_size++] = value;
            if (m_size == kSize) Flush();
        }
        void Flush() {
            if (!m_writer.m_options.ascii) {
                m_writer.m_base64.Write(m_values, m_size * sizeof(T));
            } else {
                for (std::size_t i = 0; i < m_size; ++i, ++m_written) {
                    if (m_written > 0) m_writer.text(m_written % m_components == 0 ? "\n" : " ");
                    if constexpr (sizeof(T) == 1)
                        m_writer.number(int(m_values[i]));
                    else
                        m_writer.number(m_values[i]);
                }
            }
            m_size = 0;
        }

      private:
        static constexpr std::size_t kSize = 4096;
        VtuWriter& m_writer;
        std::size_t m_components;
        T m_values[kSize];
        std::size_t m_size = 0;
        std::size_t m_written = 0;
    };

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
