#pragma once

#include <string>

namespace vidora::region {

/// The catalogue of the region's channels, an XML property list, with the doubles and the unusable records that a
/// catalogue gathered over years holds.
std::string cataloguePropertyList();

/// Writes "Data.plist" and the folder "icons" into a folder, over what is there. False where a file cannot be written.
bool writeCatalogue(const std::string& folder);

} // namespace vidora::region
