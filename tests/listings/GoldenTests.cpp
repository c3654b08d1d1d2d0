// Every saved document goes through the whole parse and is compared with the answer beside it. A case is a folder
// golden/type<N>/<case> with
//   request.json    {"type", "now", "items"}, optionally "clock" (else `now`) and "zone" (the device's, else the
//                   test's own)
//   page1.*, ...    the pages as UTF-8, compressed where the name ends in .gz or .xz
//   expected.json   {"channels": {...}, "stored": [...]}, or {"exception": true}
// With VIDORA_REWRITE_GOLDEN=1 in the environment the answers are written anew, to be reviewed as a diff.
#include "listings/ListingParser.h"
#include "listings/ShowJson.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

using namespace vidora;

namespace {

const QString goldenFolder = QStringLiteral(VIDORA_TEST_DATA "/golden");

std::vector<std::string> cases()
{
    std::vector<std::string> result;
    const QDir golden(goldenFolder);
    for (const QString& type : golden.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        for (const QString& name : QDir(golden.filePath(type)).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
            result.push_back(type.toStdString() + '/' + name.toStdString());
    }
    return result;
}

QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

Pages pagesIn(const QDir& folder)
{
    Pages pages;
    for (int number = 1;; ++number) {
        const QStringList names = folder.entryList({QStringLiteral("page%1.*").arg(number)}, QDir::Files);
        if (names.isEmpty())
            return pages;
        Page::Container container = Page::Container::None;
        if (names.first().endsWith(QLatin1String(".gz")))
            container = Page::Container::Gzip;
        else if (names.first().endsWith(QLatin1String(".xz")))
            container = Page::Container::Xz;
        pages.push_back(Page::fromBytes(contents(folder.filePath(names.first())), container, "UTF-8"));
    }
}

ChannelItems itemsOf(const QJsonObject& request)
{
    ChannelItems items;
    for (const QJsonValue item : request.value(QLatin1String("items")).toArray()) {
        const QJsonValue language = item[QLatin1String("language")];
        items.push_back({ObjectId::initWithHex(item[QLatin1String("channel")].toString()),
                         item[QLatin1String("sourceId")].toString(),
                         language.isString() ? std::optional(language.toString()) : std::nullopt});
    }
    return items;
}

/// The device's zone for the time of one case.
class DeviceZone
{
public:
    explicit DeviceZone(const QString& name)
        : m_former(qgetenv("TZ"))
    {
        if (!name.isEmpty())
            qputenv("TZ", name.toLatin1());
    }
    ~DeviceZone() { qputenv("TZ", m_former); }
    DeviceZone(const DeviceZone&) = delete;
    DeviceZone& operator=(const DeviceZone&) = delete;

private:
    QByteArray m_former;
};

class StoredChannels final : public ListingReceiver
{
public:
    void storeList(const ObjectId&, std::shared_ptr<const ShowList>) override {}
    void addToSaveSchedule(const ObjectId& channel) override { stored.append(channel.hex()); }
    void listingsStored() override {}

    QJsonArray stored;
};

QByteArray answer(const QDir& folder)
{
    const QJsonObject request =
        QJsonDocument::fromJson(contents(folder.filePath(QStringLiteral("request.json")))).object();
    const auto instant = [&request](const char* key) {
        return instantFromIsoText(request.value(QLatin1String(key)).toString());
    };
    const DeviceZone zone(request.value(QLatin1String("zone")).toString());
    const Instant now = instant("now").value();
    const FixedClock clock(instant("clock").value_or(now));
    const Endpoints endpoints = Endpoints::fromJson(contents(QStringLiteral(VIDORA_RESOURCES "/endpoints.json")), {});
    StoredChannels receiver;
    QJsonObject result;
    try {
        const auto type = static_cast<std::uint32_t>(request.value(QLatin1String("type")).toInt());
        const auto lists =
            ListingParser(clock, endpoints, receiver).netList(itemsOf(request), pagesIn(folder), now, type);
        result = {{QStringLiteral("channels"), listsToJson(lists)}, {QStringLiteral("stored"), receiver.stored}};
    } catch (const std::exception&) {
        result = {{QStringLiteral("exception"), true}};
    }
    return QJsonDocument(result).toJson();
}

class Golden : public testing::TestWithParam<std::string>
{
};

TEST_P(Golden, GivesTheExpectedShows)
{
    const QDir folder(goldenFolder + QLatin1Char('/') + QString::fromStdString(GetParam()));
    const QByteArray found = answer(folder);
    QFile file(folder.filePath(QStringLiteral("expected.json")));
    if (qEnvironmentVariableIntValue("VIDORA_REWRITE_GOLDEN") == 1) {
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(found);
        FAIL() << "written anew: " << file.fileName().toStdString();
    }
    ASSERT_TRUE(file.exists()) << "expected.json is missing";
    const QByteArray expected = QJsonDocument::fromJson(contents(file.fileName())).toJson();
    EXPECT_EQ(expected.toStdString(), found.toStdString());
}

std::string testName(const testing::TestParamInfo<std::string>& golden)
{
    std::string name = golden.param;
    std::replace_if(
        name.begin(), name.end(), [](unsigned char unit) { return std::isalnum(unit) == 0; }, '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Pages, Golden, testing::ValuesIn(cases()), testName);

} // namespace
