#include "sample-region/Catalogue.h"

#include "sample-region/Documents.h"
#include "sample-region/Pictures.h"

#include <QDir>
#include <QFile>

namespace vidora::region {

namespace {

using Record = std::vector<std::pair<std::string, std::string>>;

std::string text(const Record& record)
{
    std::string keys;
    for (const auto& [key, value] : record)
        keys += filled("      <key>{key}</key>\n      <string>{value}</string>\n",
                       {{"key", key}, {"value", escaped(value)}});
    return "    <dict>\n" + keys + "    </dict>\n";
}

Record recordOf(const RegionChannel& channel)
{
    Record record{{"Location", std::string(channel.id)},
                  {"Title", std::string(channel.title)},
                  {"Icon", std::string(channel.region) + "/" + channel.icon()},
                  {"Language", std::string(channel.language)}};
    if (!channel.stream.empty())
        record.emplace_back("Stream", channel.stream);
    int number = 0;
    for (const std::string_view source : channel.sources)
        record.emplace_back("Location" + std::to_string(++number), source);
    return record;
}

Record changed(const RegionChannel& channel, const std::string& key, const std::string& value)
{
    Record record = recordOf(channel);
    for (auto& [name, text] : record)
        if (name == key)
            text = value;
    return record;
}

/// Records that the filter drops, or that give way to a better one of the same channel.
std::string unusableRecords()
{
    const auto& all = regionChannels();
    const RegionChannel &home = all.front(), &abroad = all.back();
    const auto own = [&](const char* id, const std::string& key, const std::string& value) {
        Record record = changed(abroad, key, value);
        record.front().second = id;
        return text(record);
    };
    Record noLocation = recordOf(abroad);
    noLocation.erase(noLocation.begin());
    return text(noLocation) + text(changed(home, "Icon", "Other/" + home.icon())) +
           text(changed(abroad, "Title", abroad.title.data() + std::string(" (old)"))) +
           own("00000000000000000000a001", "Icon", "Other/nosuchicon.svg") +
           own("00000000000000000000a002", "Icon", "harbour.svg") +
           own("00000000000000000000a003", "Icon", "Serbian/") + own("00000000000000000000a004", "Icon", "/lipa1.svg") +
           own("00000000000000000000a005", "Title", "") + own("00000000000000000000a006", "Language", "fi") +
           own("00000000000000000000a007", "Icon", "Serbian/" + abroad.icon());
}

bool write(const QString& path, const std::string& content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content.data(), qint64(content.size())) >= 0;
}

} // namespace

std::string cataloguePropertyList()
{
    const RegionChannel& second = regionChannels().at(1);
    // A channel that is offered abroad, too, ahead of its home record, which takes the place over.
    std::string records = text(changed(second, "Icon", "Other/" + second.icon()));
    for (const RegionChannel& channel : regionChannels())
        records += text(recordOf(channel));
    return filled(R"(<?xml version="1.0" encoding="UTF-8"?>
<plist version="1.0">
<dict>
  <key>Channels</key>
  <array>
{records}{unusable}  </array>
</dict>
</plist>
)",
                  {{"records", records}, {"unusable", unusableRecords()}});
}

bool writeCatalogue(const std::string& folder)
{
    const QDir root(QString::fromStdString(folder));
    if (!root.mkpath(QStringLiteral("icons")) ||
        !write(root.filePath(QStringLiteral("Data.plist")), cataloguePropertyList()))
        return false;
    for (const RegionChannel& channel : regionChannels())
        if (!write(root.filePath(QStringLiteral("icons/") + QString::fromStdString(channel.icon())),
                   channelIcon(channel)))
            return false;
    return true;
}

} // namespace vidora::region
