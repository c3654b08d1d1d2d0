#pragma once

#include "sample-region/Documents.h"

#include <string_view>
#include <vector>

namespace vidora::region {

/// One site of the region: it has an address of its own, since several have the same paths.
struct Provider
{
    std::string_view name; ///< the family's key, with a number or a country where it has several sites
    std::optional<Document> (*document)(const DocumentRequest&);
};

/// All sites, in the order of their ports.
const std::vector<Provider>& providers();

/// Where the sites stand, as an endpoint configuration. `origins`: of each provider, in order.
std::string endpointsJson(const std::vector<std::string>& origins);

} // namespace vidora::region
