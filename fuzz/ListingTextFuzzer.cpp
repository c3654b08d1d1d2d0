// Titles, descriptions and texts of pages as providers send them. The text operations take any of them, and what they
// promise of their results holds for all.
#include "content/ListingText.h"
#include "content/RemarkPatterns.h"
#include "content/TVEntry.h"

#include <cstdint>
#include <cstdlib>

using namespace vidora;

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
}

void checkTitle(const QString& text)
{
    showTitle(text);
    const std::optional<QString> description = showInstantDescription(text);
    require(!description || text.endsWith(*description));
    const TextRange remark = firstBracketRemark(text);
    require(remark.length == 0 || text[remark.start + remark.length - 1] == QLatin1Char(']'));
}

void checkDescription(const QString& text)
{
    TVEntrySupplementalData extra;
    extra.description = text;
    descriptionCleanUp(extra, QStringLiteral("tv.example"));
    const QString cleaned = extra.description->string();
    require(cleaned.isEmpty() || cleaned.endsWith(QLatin1Char('.')));
    require(cleaned.size() <= text.size() + 1);
}

void checkPageText(const QString& text)
{
    const std::optional<QString> trimmed = trimmedListingText(text);
    require(!trimmed || (!trimmed->isEmpty() && trimmed->size() <= text.size()));
    require(htmlCleanUp(text).size() <= text.size());
    const QString cleaned = whitespaceCleanUp(text);
    require(cleaned == cleaned.trimmed());
}

void checkEntry(const QString& text)
{
    TVEntry entry;
    entry.setLanguage(QStringLiteral("mk"));
    entry.setIdentificator(text);
    entry.setSubtitle1(text);
    require(entry.title().has_value());
    require(entry.fullInstantDetails().has_value() == !text.isEmpty());
    require(entry.urlDigestWithScheme(QStringLiteral("vidora")).has_value());
    ObjectId::initWithHex(text);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    checkTitle(text);
    checkDescription(text);
    checkPageText(text);
    checkEntry(text);
    // The same bytes as UTF-16, for halves of surrogate pairs and the rarer planes.
    QString units(static_cast<qsizetype>(size / 2), Qt::Uninitialized);
    for (qsizetype i = 0; i < units.size(); ++i)
        units[i] = QChar(static_cast<char16_t>(data[2 * i] | data[2 * i + 1] << 8));
    checkTitle(units);
    checkDescription(units);
    checkPageText(units);
    checkEntry(units);
    return 0;
}
