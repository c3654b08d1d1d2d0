#pragma once

#include "content/TVEntry.h"
#include "content/TVEntrySupplementalData.h"
#include "platform/URL.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <vector>

namespace vidora {

using Pictures = std::set<URL>;

/// The form in which a show travels, is stored and is shown: the broadcast and, as far as they are known, its category
/// mask, its supplemental data and its pictures. Parts are present from the front: one that is present has all those
/// ahead of it. A published element never changes; a change makes a new one that shares the unchanged parts. The
/// identity of a broadcast is the pointer of its entry.
struct ShowElement
{
    std::shared_ptr<const TVEntry> entry;
    std::optional<std::uint32_t> categories;
    std::shared_ptr<const TVEntrySupplementalData> extra;
    std::optional<Pictures> pictures;

    /// How many parts are present, 1 to 4.
    int count() const { return pictures ? 4 : extra ? 3 : categories ? 2 : 1; }
};

using Show = std::shared_ptr<const ShowElement>;
using ShowList = std::vector<Show>;

/// A show while a parser builds it and before anyone else may see it. The parts follow the rule of ShowElement.
struct ShowDraft
{
    std::shared_ptr<TVEntry> entry = std::make_shared<TVEntry>();
    std::optional<std::uint32_t> categories;
    std::shared_ptr<TVEntrySupplementalData> extra;
    std::optional<Pictures> pictures;

    /// Gives the parts over; the draft is empty afterwards.
    Show publish() &&
    {
        return std::make_shared<const ShowElement>(
            ShowElement{std::move(entry), categories, std::move(extra), std::move(pictures)});
    }
};

using DraftList = std::vector<ShowDraft>;

/// A show element as an object with all its parts, used while an XMLTV document is read and to look a film up.
struct ExtendedTVEntry
{
    std::shared_ptr<TVEntry> basic = std::make_shared<TVEntry>();
    std::uint32_t categories = 0;
    std::shared_ptr<TVEntrySupplementalData> extra = std::make_shared<TVEntrySupplementalData>();
    std::optional<URL> icon;
};

} // namespace vidora
