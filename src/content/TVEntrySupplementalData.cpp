#include "content/TVEntrySupplementalData.h"

#include "content/TVEntry.h"

namespace vidora {

bool TVEntrySupplementalData::empty() const
{
    return !description && !episodeDescription && !details && !directedBy && !roles && !imdbURL && !trailerURL &&
           !language;
}

void TVEntrySupplementalData::updateAlphabet()
{
    if (alphabetUpdated)
        return;
    description = TVEntry::latin2Cyrillic(description, language);
    episodeDescription = TVEntry::latin2Cyrillic(episodeDescription, language);
    details = TVEntry::latin2Cyrillic(details, language);
    directedBy = TVEntry::latin2Cyrillic(directedBy, language);
    roles = TVEntry::latin2Cyrillic(roles, language);
    alphabetUpdated = true;
}

} // namespace vidora
