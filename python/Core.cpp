// The compiled part of the Python package: ormo/nitf.hpp as Python sees it.

#include "ormo/nitf.hpp"
#include "ormo_csm_version.h"

#include <cstring>
#include <mutex>
#include <utility>

#include <pybind11/numpy.h>
#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

namespace py = pybind11;
using namespace pybind11::literals;
using namespace ormo::nitf;

namespace {

py::object Type(const char* aName)
{
    return py::module_::import("ormo_nitf._types").attr(aName);
}

/// Bytes above 127 are the Latin-1 characters of the same number, as in the program's JSON.
py::str Text(std::string_view aBytes)
{
    return py::reinterpret_steal<py::str>(
        PyUnicode_DecodeLatin1(aBytes.data(), static_cast<Py_ssize_t>(aBytes.size()), nullptr));
}

/// Messages are UTF-8 but for what they quote of a file.
py::str Message(const std::string& aText)
{
    return py::reinterpret_steal<py::str>(
        PyUnicode_DecodeUTF8(aText.data(), static_cast<Py_ssize_t>(aText.size()), "backslashreplace"));
}

py::bytes BytesOf(std::string_view aBytes)
{
    return {aBytes.data(), aBytes.size()};
}

py::object DateOf(const Date& aDate)
{
    const py::module_ datetime = py::module_::import("datetime");
    if (aDate.second >= 0) {
        // A leap second is no time of Python's.
        return datetime.attr("datetime")(aDate.year, aDate.month, aDate.day, aDate.hour, aDate.minute,
                                         std::min(aDate.second, 59), 0, datetime.attr("timezone").attr("utc"));
    }
    if (aDate.day >= 0 && aDate.hour < 0) {
        return datetime.attr("date")(aDate.year, aDate.month, aDate.day);
    }
    return py::str(aDate.Iso());
}

struct ToPython
{
    py::object operator()(std::monostate) const { return py::none(); }
    py::object operator()(std::int64_t aValue) const { return py::int_(aValue); }
    py::object operator()(double aValue) const { return py::float_(aValue); }
    py::object operator()(const Date& aValue) const { return DateOf(aValue); }
    py::object operator()(std::string_view aValue) const { return Text(aValue); }
    py::object operator()(const Bytes& aValue) const { return BytesOf(aValue.bytes); }
};

std::string_view WithoutBlanks(std::string_view aText)
{
    const auto first = aText.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string_view()
                                           : aText.substr(first, aText.find_last_not_of(' ') - first + 1);
}

py::object FieldOf(const Field& aField, const py::object& aOwner)
{
    const Value value = aField.value();
    const auto* const bytes = std::get_if<Bytes>(&value);
    return Type("Field")(Text(bytes != nullptr ? bytes->bytes : WithoutBlanks(aField.text())), aField.name(),
                         BytesOf(aField.text()), std::visit(ToPython(), value), aOwner);
}

Field Find(const Record& aRecord, const std::string& aName)
{
    const std::optional<Field> field = aRecord.field(aName);
    if (!field) {
        throw py::key_error(aName);
    }
    return *field;
}

/// What makes a header or TRE a mapping of its fields.
template<typename Class>
void DefineMapping(Class& aClass)
{
    using Owner = typename Class::type;
    const auto list = [](auto aOf) {
        return [aOf](const py::object& aSelf) {
            py::list items;
            for (const Field& field : aSelf.cast<const Owner&>().fields()) {
                items.append(aOf(field, aSelf));
            }
            return items;
        };
    };
    const auto name = [](const Field& aField, const py::object&) -> py::object { return py::str(aField.name()); };
    aClass
        .def("__getitem__",
             [](const py::object& aSelf, const std::string& aName) {
                 return FieldOf(Find(aSelf.cast<const Owner&>(), aName), aSelf);
             })
        .def("__contains__",
             [](const Owner& aSelf, const std::string& aName) { return aSelf.field(aName).has_value(); })
        .def("__contains__", [](const Owner&, const py::object&) { return false; })
        .def("__len__", [](const Owner& aSelf) { return aSelf.fields().size(); })
        .def("__iter__", [list, name](const py::object& aSelf) { return py::iter(list(name)(aSelf)); })
        .def("keys", list(name), "The names of the fields in their order.")
        .def("values", list(FieldOf), "The fields in their order.")
        .def("items", list([](const Field& aField, const py::object& aSelf) -> py::object {
                 return py::make_tuple(aField.name(), FieldOf(aField, aSelf));
             }),
             "Names and fields in their order.")
        .def(
            "get",
            [](const py::object& aSelf, const std::string& aName, const py::object& aDefault) {
                const std::optional<Field> field = aSelf.cast<const Owner&>().field(aName);
                return field ? FieldOf(*field, aSelf) : aDefault;
            },
            "name"_a, "default"_a = py::none(), "The field of a name, or the default.")
        .def("_info", [](const Owner& aSelf, const std::string& aName) { return Find(aSelf, aName).info(); })
        .def("_meaning",
             [](const Owner& aSelf, const std::string& aName) { return Text(Find(aSelf, aName).meaning()); });
}

const char* LevelOf(const Finding& aFinding)
{
    return aFinding.level == Finding::Level::Warning ? "warning"
           : aFinding.level == Finding::Level::Error ? "error"
                                                     : "fatal";
}

py::object Positions(const std::vector<Position>& aRing)
{
    py::list points;
    for (const Position& position : aRing) {
        points.append(py::make_tuple(position.longitude, position.latitude));
    }
    return py::tuple(points);
}

/// A geometry of GeoJSON; None when the corners make no area.
py::object Geometry(const std::optional<Footprint>& aFootprint)
{
    py::list areas;
    if (aFootprint) {
        for (const std::vector<Position>& ring : aFootprint->areas()) {
            areas.append(py::make_tuple(Positions(ring)));
        }
    }
    if (areas.empty()) {
        return py::none();
    }
    if (areas.size() == 1) {
        return py::dict("type"_a = "Polygon", "coordinates"_a = areas[0]);
    }
    return py::dict("type"_a = "MultiPolygon", "coordinates"_a = py::tuple(areas));
}

py::dict Feature(const Image& aImage)
{
    const std::optional<Footprint> footprint = aImage.footprint();
    return py::dict(
        "type"_a = "Feature", "geometry"_a = Geometry(footprint),
        "properties"_a = py::dict("image"_a = aImage.index(),
                                  "source"_a = footprint ? py::object(Text(footprint->source)) : py::none()));
}

/// The type of the samples in the byte order of the machine.
py::dtype DType(const Image& aImage)
{
    const char* const kind = aImage.sample() == Sample::Unsigned  ? "u"
                             : aImage.sample() == Sample::Signed  ? "i"
                             : aImage.sample() == Sample::Real    ? "f"
                             : aImage.sample() == Sample::Complex ? "c"
                                                                  : "V";
    return py::dtype(kind + std::to_string(std::max<std::size_t>(aImage.bytes_per_sample(), 1)));
}

py::array Pixels(const Image& aImage, std::optional<int> aBand, std::optional<std::array<int, 4>> aWindow, int aStep)
{
    if (aStep < 1 || (aWindow && aStep != 1)) {
        throw py::value_error("step is at least 1, and 1 with a window");
    }
    const std::array<int, 4> place =
        aWindow.value_or(std::array<int, 4>{0, 0, static_cast<int>(aImage.rows()), static_cast<int>(aImage.columns())});
    if (place[2] < 1 || place[3] < 1) {
        throw py::value_error("a window is (row, column, rows, columns), with one row and one column at least");
    }
    const auto count = [aStep](int aPixels) { return static_cast<py::ssize_t>((aPixels - 1) / aStep + 1); };
    std::vector<py::ssize_t> shape{count(place[2]), count(place[3])};
    if (!aBand) {
        shape.insert(shape.begin(), static_cast<py::ssize_t>(aImage.bands()));
    }
    const int first = aBand.value_or(0);
    const int end = aBand ? first + 1 : static_cast<int>(aImage.bands());
    const auto read = [&](int aOf) {
        const py::gil_scoped_release released;
        return aStep == 1 ? aImage.pixels(aOf, {place[0], place[1], place[2], place[3]}) : aImage.overview(aStep, aOf);
    };
    // Before there is an array, so that what cannot be read costs the memory of one band.
    std::vector<std::byte> band = read(first);
    py::array pixels(DType(aImage), shape);
    auto* to = static_cast<std::byte*>(pixels.mutable_data());
    for (int of = first; of != end; ++of) {
        band = of == first ? std::move(band) : read(of);
        std::memcpy(to, band.data(), band.size());
        to += band.size();
    }
    return pixels;
}

/// A file that is opened, asked and closed by several threads of Python.
class OpenFile
{
public:
    explicit OpenFile(File aFile) : m_file(std::move(aFile)) {}

    const File& Get() const
    {
        if (!m_file) {
            throw py::value_error("the file is closed");
        }
        return *m_file;
    }
    void Close() { m_file.reset(); }

    /// One after the other: the file keeps what it makes.
    template<typename Make>
    auto MakeDocument(Make aMake)
    {
        File file = Get();
        const py::gil_scoped_release released;
        const std::lock_guard<std::mutex> lock(m_making);
        return aMake(file);
    }

private:
    std::optional<File> m_file;
    std::mutex m_making;
};

std::unique_ptr<OpenFile> Open(const py::bytes& aPath, bool aSalvage, bool aImagesOnly)
{
    const std::string path = aPath;
    const py::gil_scoped_release released;
    return std::make_unique<OpenFile>(File(path, {aImagesOnly, aSalvage}));
}

py::object ImageOrSegment(const File& aFile, const Segment& aSegment)
{
    return aSegment.kind() == Kind::Image ? py::cast(aFile.images().at(aSegment.index())) : py::cast(aSegment);
}

/// The values of fields of a file by their names, and what was wrong with it.
py::dict Row(const py::bytes& aPath, const std::vector<std::string>& aFields)
{
    const std::string path = aPath;
    std::optional<File> file;
    std::vector<Value> values(aFields.size());
    std::string error;
    {
        const py::gil_scoped_release released;
        try {
            file.emplace(path);
            for (std::size_t i = 0; i != aFields.size(); ++i) {
                const std::optional<Field> field = file->find(aFields[i]);
                values[i] = field ? field->value() : Value();
            }
        } catch (const Error& caught) {
            error = caught.what();
        }
    }
    py::dict row("error"_a = error.empty() ? py::object(py::none()) : Message(error));
    for (std::size_t i = 0; i != aFields.size(); ++i) {
        row[py::str(aFields[i])] = std::visit(ToPython(), values[i]);
    }
    return row;
}

py::object NoneIf(bool aIsNone, py::object aValue)
{
    return aIsNone ? py::none() : std::move(aValue);
}

void DefineFinding(py::module_& aModule)
{
    const auto text = [](std::string Finding::*aPart) {
        return [aPart](const Finding& aFinding) { return Text(aFinding.*aPart); };
    };
    py::class_<Finding>(aModule, "Finding",
                        "Something wrong with a file: what, where, the value found and what is allowed.")
        .def_property_readonly("level", &LevelOf, "\"warning\", \"error\" or \"fatal\".")
        .def_property_readonly("rule", text(&Finding::rule), "Identifier of the rule; empty for a fault of reading.")
        .def_property_readonly(
            "sentence", [](const Finding& aFinding) { return Message(aFinding.sentence); }, "What is wrong, in a line.")
        .def_property_readonly("owner", text(&Finding::owner), "Whose field it is: \"BLOCKA\".")
        .def_property_readonly("field", text(&Finding::field), "\"LON_4_1\"; empty when it is about no field.")
        .def_property_readonly(
            "detail", [](const Finding& aFinding) { return Message(aFinding.detail); }, "More than the sentence says.")
        .def_property_readonly("value", text(&Finding::value), "The bytes found, the first of them, as Latin-1.")
        .def_property_readonly("allowed", text(&Finding::allowed), "What may stand there.")
        .def_property_readonly("clause", text(&Finding::clause), "The standard's clause or table.")
        .def_property_readonly("segment", text(&Finding::segment), "\"ImageSegment\"; empty for the file as a whole.")
        .def_property_readonly(
            "index",
            [](const Finding& aFinding) {
                return NoneIf(aFinding.index == Finding::NO_INDEX, py::int_(aFinding.index));
            },
            "Of the segment among those of its kind, from 0.")
        .def_property_readonly("tre", text(&Finding::tre), "Tag of the TRE.")
        .def_property_readonly(
            "offset",
            [](const Finding& aFinding) {
                return NoneIf(aFinding.offset == Finding::NO_OFFSET, py::int_(aFinding.offset));
            },
            "Byte offset in the file.")
        .def("__str__", [](const Finding& aFinding) { return Message(aFinding.Line()); })
        .def("__repr__", [](const Finding& aFinding) { return Message("<Finding " + aFinding.Line() + '>'); });
}

void DefineRecords(py::module_& aModule)
{
    py::class_<FieldInfo>(aModule, "Info", "What the table of a header or TRE says of a field.")
        .def_readonly("name", &FieldInfo::fieldName)
        .def_readonly("width", &FieldInfo::width, "Bytes.")
        .def_property_readonly("long_name", [](const FieldInfo& aInfo) { return Text(aInfo.longName); })
        .def_property_readonly(
            "unit", [](const FieldInfo& aInfo) { return Text(aInfo.unit); }, "Empty for none.")
        .def_property_readonly(
            "values", [](const FieldInfo& aInfo) { return Text(aInfo.values); },
            "Allowed values: alternatives between \"|\"; empty when every value is allowed.")
        .def_property_readonly("description", [](const FieldInfo& aInfo) { return Text(aInfo.description); })
        .def("__repr__",
             [](const FieldInfo& aInfo) { return Text("<Info " + aInfo.fieldName + ": " + aInfo.longName + '>'); });

    py::class_<Tre> tre(aModule, "Tre",
                        "A tagged record extension: a mapping of field names to fields. One whose layout is not known "
                        "has none, but its data.");
    DefineMapping(tre);
    tre.def_property_readonly("tag", [](const Tre& aTre) { return Text(aTre.tag()); })
        .def_property_readonly("long_name", [](const Tre& aTre) { return Text(aTre.long_name()); })
        .def_property_readonly("is_decoded", &Tre::is_decoded, "Whether its layout is known and fits.")
        .def_property_readonly(
            "area", [](const Tre& aTre) { return Text(aTre.area()); }, "The extension area: \"IXSHD\".")
        .def_property_readonly("offset", &Tre::offset, "Of its first byte in the file.")
        .def_property_readonly("data", [](const Tre& aTre) { return BytesOf(aTre.data()); })
        .def("__repr__", [](const Tre& aTre) {
            return Text("<Tre " + std::string(aTre.tag()) + ": " + std::string(aTre.long_name()) + '>');
        });
}

void DefineSegments(py::module_& aModule)
{
    py::class_<Segment> segment(aModule, "Segment",
                                "The file header or a segment: a mapping of field names to fields.");
    DefineMapping(segment);
    segment
        .def_property_readonly(
            "kind", [](const Segment& aSegment) { return Text(aSegment.word()); },
            "\"header\", \"image\", \"graphic\", \"symbol\", \"label\", \"text\", \"des\" or \"res\".")
        .def_property_readonly("index", &Segment::index, "Among the segments of its kind, from 0.")
        .def_property_readonly("name", &Segment::name, "\"image:0\".")
        .def_property_readonly("is_readable", &Segment::is_readable,
                               "False for a segment of a salvaged file that cannot be read.")
        .def_property_readonly("header_offset", &Segment::header_offset)
        .def_property_readonly("header_size", &Segment::header_size)
        .def_property_readonly("data_offset", &Segment::data_offset)
        .def_property_readonly("data_size", &Segment::data_size)
        .def_property_readonly(
            "tres", [](const Segment& aSegment) { return Type("TreList")(py::cast(aSegment.tres())); },
            "Its own TREs and then those that overflow DESs carry for it.")
        .def(
            "data",
            [](const Segment& aSegment) -> py::object {
                std::optional<std::string_view> data;
                {
                    const py::gil_scoped_release released;
                    data = aSegment.data();
                }
                return data ? py::object(BytesOf(*data)) : py::none();
            },
            "All data of a segment that is no image; None when they are not all in the file.")
        .def("__repr__", [](const Segment& aSegment) { return "<Segment " + aSegment.name() + '>'; });

    py::class_<Footprint>(aModule, "Footprint", "Where an image lies on the ground.")
        .def_property_readonly(
            "corners",
            [](const Footprint& aFootprint) {
                py::list corners;
                for (const Position& corner : aFootprint.corners) {
                    corners.append(py::make_tuple(corner.latitude, corner.longitude));
                }
                return corners;
            },
            "Latitude and longitude of the corner pixels: first row first column, first row last column, last row last "
            "column, last row first column.")
        .def_property_readonly(
            "source", [](const Footprint& aFootprint) { return Text(aFootprint.source); }, "\"BLOCKA\", \"IGEOLO\" ...")
        .def_readonly("crosses_180", &Footprint::crosses_180)
        .def_property_readonly(
            "bounds",
            [](const Footprint& aFootprint) {
                return py::make_tuple(aFootprint.west, aFootprint.south, aFootprint.east, aFootprint.north);
            },
            "West, south, east, north.")
        .def_property_readonly("__geo_interface__", [](const Footprint& aFootprint) { return Geometry(aFootprint); });

    py::class_<Rpc>(aModule, "Rpc", "Rational polynomial coefficients, in the order of RPC00B.")
        .def_property_readonly("tag", [](const Rpc& aRpc) { return Text(aRpc.tag); })
        .def_readonly("line_numerator", &Rpc::line_numerator)
        .def_readonly("line_denominator", &Rpc::line_denominator)
        .def_readonly("sample_numerator", &Rpc::sample_numerator)
        .def_readonly("sample_denominator", &Rpc::sample_denominator)
        .def_property_readonly("offsets",
                               [](const Rpc& aRpc) {
                                   const Rpc::Normals& n = aRpc.offsets;
                                   return py::dict("line"_a = n.line, "sample"_a = n.sample, "latitude"_a = n.latitude,
                                                   "longitude"_a = n.longitude, "height"_a = n.height);
                               })
        .def_property_readonly("scales",
                               [](const Rpc& aRpc) {
                                   const Rpc::Normals& n = aRpc.scales;
                                   return py::dict("line"_a = n.line, "sample"_a = n.sample, "latitude"_a = n.latitude,
                                                   "longitude"_a = n.longitude, "height"_a = n.height);
                               })
        .def_readonly("bias", &Rpc::bias, "Estimated error in metres.")
        .def_readonly("random", &Rpc::random, "Estimated error in metres.");

    py::class_<Image, Segment> image(aModule, "Image", "An image segment.");
    DefineMapping(image);
    image.def_property_readonly("rows", &Image::rows)
        .def_property_readonly("columns", &Image::columns)
        .def_property_readonly("bands", &Image::bands)
        .def_property_readonly("footprint", &Image::footprint, "The best there is, or None.")
        .def_property_readonly("rpc", &Image::rpc, "Of RPC00B or RPC00A, or None.")
        .def_property_readonly("dtype", &DType, "Of the samples, as NumPy names it.")
        .def_property_readonly("__geo_interface__", &Feature)
        .def(
            "property",
            [](const Image& aImage, const std::string& aKey) -> py::object {
                const std::optional<std::string> value = aImage.property(aKey);
                return value ? py::object(Text(*value)) : py::none();
            },
            "key"_a, "What the file answers to a property key such as \"acquisition.date\", or None.")
        .def("pixels", &Pixels, "band"_a = py::none(), py::kw_only(), "window"_a = py::none(), "step"_a = 1,
             "The samples as an array: bands, rows, columns; of one band rows and columns. A window is (row, column, "
             "rows, columns); with a step every so many-th pixel of every so many-th row is read. Values are those of "
             "the "
             "file: no look-up table is applied.")
        .def("__repr__", [](const Image& aImage) {
            return "<Image " + aImage.name() + ": " + std::to_string(aImage.rows()) + " rows, " +
                   std::to_string(aImage.columns()) + " columns, " + std::to_string(aImage.bands()) + " bands>";
        });
}

void DefineFile(py::module_& aModule)
{
    py::class_<OpenFile>(aModule, "File", "An open file. What was taken from it goes on answering when it is closed.")
        .def(py::init(&Open), "path"_a, "salvage"_a = false, "images_only"_a = false)
        .def_static("_from_bytes",
                    [](const py::bytes& aData, const std::string& aName) {
                        const std::string data = aData;
                        const py::gil_scoped_release released;
                        return std::make_unique<OpenFile>(File::from_memory(data, aName));
                    })
        .def_property_readonly("path",
                               [](const OpenFile& aFile) {
                                   const std::string_view path = aFile.Get().path();
                                   return py::reinterpret_steal<py::object>(PyUnicode_DecodeFSDefaultAndSize(
                                       path.data(), static_cast<Py_ssize_t>(path.size())));
                               })
        .def_property_readonly(
            "version", [](const OpenFile& aFile) { return Text(aFile.Get().version()); }, "\"NITF02.10\".")
        .def_property_readonly(
            "size", [](const OpenFile& aFile) { return aFile.Get().size(); }, "In bytes.")
        .def_property_readonly("header", [](const OpenFile& aFile) { return aFile.Get().header(); })
        .def_property_readonly(
            "segments",
            [](const OpenFile& aFile) {
                py::list segments;
                for (const Segment& segment : aFile.Get().segments()) {
                    segments.append(ImageOrSegment(aFile.Get(), segment));
                }
                return segments;
            },
            "All segments in the order of the file.")
        .def_property_readonly("images", [](const OpenFile& aFile) { return aFile.Get().images(); })
        .def_property_readonly(
            "findings", [](const OpenFile& aFile) { return aFile.Get().findings(); }, "What was found on reading.")
        .def(
            "get",
            [](const OpenFile& aFile, const std::string& aName) -> py::object {
                const std::optional<Field> field = aFile.Get().find(aName);
                return field ? std::visit(ToPython(), field->value()) : py::none();
            },
            "name"_a, "The value of a field by owner and name: \"image.IDATIM\", \"USE00A.SUN_EL\"; None for none.")
        .def(
            "validate",
            [](OpenFile& aFile) { return aFile.MakeDocument([](File& aOf) { return aOf.validate().findings; }); },
            "What the rules of the standards find, errors first.")
        .def(
            "xml", [](OpenFile& aFile) { return aFile.MakeDocument([](File& aOf) { return std::string(aOf.xml()); }); },
            "The whole file as an XML document.")
        .def_property_readonly("__geo_interface__",
                               [](const OpenFile& aFile) {
                                   py::list features;
                                   for (const Image& image : aFile.Get().images()) {
                                       features.append(Feature(image));
                                   }
                                   return py::dict("type"_a = "FeatureCollection", "features"_a = features);
                               })
        .def("close", &OpenFile::Close)
        .def("__enter__", [](const py::object& aSelf) { return aSelf; })
        .def("__exit__", [](OpenFile& aFile, const py::args&) { aFile.Close(); });
}

}  // namespace

PYBIND11_MODULE(_core, aModule)
{
    aModule.attr("__version__") = ORMO_CSM_VERSION;
    py::register_exception_translator([](std::exception_ptr aPointer) {
        try {
            std::rethrow_exception(std::move(aPointer));
        } catch (const Error& error) {
            const py::object type = Type("NitfError");
            const py::object made = type(Message(error.what()), py::cast(error.findings()));
            PyErr_SetObject(type.ptr(), made.ptr());
        }
    });
    DefineFinding(aModule);
    DefineRecords(aModule);
    DefineSegments(aModule);
    DefineFile(aModule);
    aModule.def("_row", &Row);
}
