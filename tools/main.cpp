#include "tools/Commands.h"
#include "tools/Isd.h"

#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

namespace {

int Run(int aCount, char** aArguments)
{
    CLI::App app("Reads NITF 2.0, NITF 2.1 and NSIF 1.0 files and tells all that they say.", "ormo-nitf");
    app.set_version_flag("--version", ORMO_VERSION);
    app.require_subcommand(1);
    int exitCode = OrmoNitf::EXIT_DONE;
    std::vector<std::string> files;
    std::string file;
    std::string out;
    bool imagesOnly = false;
    bool asXml = false;
    std::string tag;
    std::string field;
    std::string kind;
    unsigned index = 0;
    bool asSvg = false;
    int drawn = -1;

    auto* const info = app.add_subcommand("info", "What a person wants to see first");
    info->add_option("FILE", files, "NITF or NSIF files")->required();
    info->callback([&] { exitCode = OrmoNitf::Info(files); });

    auto* const xml = app.add_subcommand("xml", "The whole file as an XML document");
    xml->add_flag("--images-only", imagesOnly, "Leave out the segments behind the images");
    xml->add_option("-o", out, "File to write; standard output without it");
    xml->add_option("FILE", file, "NITF or NSIF file")->required();
    xml->callback([&] { exitCode = OrmoNitf::Xml(file, imagesOnly, out); });

    auto* const json = app.add_subcommand("json", "One JSON object per file and line");
    json->add_option("FILE", files, "NITF or NSIF files")->required();
    json->callback([&] { exitCode = OrmoNitf::Json(files); });

    auto* const validate = app.add_subcommand("validate", "What the standards' rules find");
    validate->add_flag("--xml", asXml, "The report as an XML document");
    validate->add_option("FILE", files, "NITF or NSIF files")->required();
    validate->callback([&] { exitCode = OrmoNitf::Validate(files, asXml); });

    auto* const describe = app.add_subcommand("describe", "What a TRE and its fields mean; all tags without one");
    describe->add_option("TAG", tag, "Tag of a TRE, such as BLOCKA");
    describe->add_option("FIELD", field, "Field of the TRE");
    describe->callback([&] { exitCode = OrmoNitf::Describe(tag, field); });

    auto* const cgm = app.add_subcommand("cgm", "Graphics, symbols and labels as clear text, or drawn over the images");
    cgm->add_flag("--svg", asSvg, "A drawing in common coordinates, ordered by display level");
    cgm->add_option("-o", out, "File to write; standard output without it");
    cgm->add_option("FILE", file, "NITF or NSIF file")->required();
    cgm->add_option("INDEX", drawn,
                    "Position among graphics, or among symbols and then labels, from 0; all without it");
    cgm->callback([&] { exitCode = OrmoNitf::Cgm(file, drawn, asSvg, out); });

    auto* const extract = app.add_subcommand("extract", "Writes the data of one segment to a file");
    extract->add_option("FILE", file, "NITF or NSIF file")->required();
    extract->add_option("KIND", kind, "image, graphic, symbol, label, text, des or res")->required();
    extract->add_option("INDEX", index, "Position among the segments of its kind, from 0")->required();
    extract->add_option("-o", out, "File to write")->required();
    extract->callback([&] { exitCode = OrmoNitf::Extract(file, kind, index, out); });

    auto* const plugin = app.add_subcommand(
        "plugin", "The CSM plug-in, the plug-ins registered beside it, companion libraries, classification level");
    plugin->add_option("LIBRARY", files, "Plug-in libraries to load first");
    plugin->callback([&] { exitCode = OrmoNitf::Plugin(files); });

    auto* const preview = app.add_subcommand("preview", "Writes an overview of an image as a PNG file");
    preview->add_option("FILE", file, "NITF or NSIF file")->required();
    preview->add_option("IMAGE", index, "Position among the image segments, from 0; the first without it");
    preview->add_option("-o", out, "File to write")->required();
    preview->callback([&] { exitCode = OrmoNitf::Preview(file, index, out); });

    try {
        app.parse(aCount, aArguments);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? OrmoNitf::EXIT_DONE : OrmoNitf::EXIT_WRONG_USE;
    }
    std::cout.flush();
    return std::cout.good() ? exitCode : static_cast<int>(OrmoNitf::EXIT_WRONG_USE);
}

}  // namespace

int main(int aCount, char** aArguments)
{
    try {
        return Run(aCount, aArguments);
    } catch (const std::exception& error) {
        std::cerr << "ormo-nitf: " << error.what() << '\n';
        return OrmoNitf::EXIT_WRONG_USE;
    }
}
