#pragma once

#include "content/KeywordTable.h"

namespace vidora {

/// Words inside the bracket groups that feeds put into sub-titles, in many languages. Rows overlap on purpose.
const KeywordTable& bracketGroupKeywords();

/// Words by which a sub-title is a genre and no title.
const KeywordTable& subtitleGenreKeywords();

/// Words of a description that tell its kind.
const KeywordTable& descriptionKeywords();

} // namespace vidora
