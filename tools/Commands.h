#pragma once

#include <string>
#include <vector>

namespace OrmoNitf {

// The commands of the program. Each answers its exit code; results go to standard output or the named file, problems to
// standard error.
int Info(const std::vector<std::string>& aFiles);
int Json(const std::vector<std::string>& aFiles);
int Xml(const std::string& aFile, bool aImagesOnly, const std::string& aOut);
int Validate(const std::vector<std::string>& aFiles, bool aXml);
int Describe(const std::string& aTag, const std::string& aField);
/// Loads the libraries first, as a host would load plug-ins.
int Plugin(const std::vector<std::string>& aLibraries);
/// The clear text, or with `aSvg` a drawing, of the graphics, symbols and labels; of one of them with an index.
int Cgm(const std::string& aFile, int aIndex, bool aSvg, const std::string& aOut);
/// Writes an overview of an image segment, counted from 0, as a PNG file.
int Preview(const std::string& aFile, unsigned aImage, const std::string& aOut);
int Extract(const std::string& aFile, const std::string& aKind, unsigned aIndex, const std::string& aOut);

}  // namespace OrmoNitf
