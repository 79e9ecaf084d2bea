// A file appears whole or not at all: it is written under another name in the same folder, and then
// renamed.
#pragma once

#include <optional>
#include <string>

#include "raster/gif_file.h"

namespace orvane {

// `name` is a plain file name. What cannot be done ends in FailPlatform, and a file that was there
// stays as it was.
void WriteAside(const std::string& folder, const std::string& name, const FileBytes& bytes);

// Nothing when there is no such file; any other error fails.
std::optional<FileBytes> ReadWhole(const std::string& folder, const std::string& name);

}  // namespace orvane
