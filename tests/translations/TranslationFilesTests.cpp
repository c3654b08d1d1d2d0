// What translations/ holds, against the texts in the sources as tools/update-translations finds them.
#include <QDir>
#include <QFile>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <algorithm>
#include <functional>
#include <gmock/gmock.h>

namespace vidora {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;

const QString sources = QStringLiteral(VIDORA_SOURCES);

struct Text
{
    bool isFinished = true;
    QStringList forms; ///< one, or one for each plural form of the language
};

/// A language's texts by their English keys.
using Texts = QMap<QString, Text>;

Texts readTexts(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    QXmlStreamReader xml(&file);
    Texts texts;
    QString key;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == u"source") {
            key = xml.readElementText();
        } else if (xml.isStartElement() && xml.name() == u"translation") {
            Text& text = texts[key];
            text.isFinished = !xml.attributes().hasAttribute(QStringLiteral("type"));
            QString plain;
            for (xml.readNext(); !xml.isEndElement(); xml.readNext()) {
                if (xml.isStartElement())
                    text.forms << xml.readElementText();
                else
                    plain += xml.text();
            }
            if (text.forms.isEmpty())
                text.forms << plain;
        }
    }
    EXPECT_FALSE(xml.hasError()) << path.toStdString();
    return texts;
}

/// What must stand in each translation as it stands in the key: places for values, options, commands to type, and a
/// space to which something will be joined.
QStringList keptParts(const QString& text)
{
    static const QRegularExpression kept(
        QStringLiteral("%[0-9n]|--[a-z-]+|\\bvidora [a-z-]+|\\bcalendars "
                       "(?:add|test|remove)\\b|\\d\\d:\\d\\d\\S*|\\b(?:XMLTV|CalDAV)\\b|^ | $"));
    QStringList parts;
    for (auto match = kept.globalMatch(text); match.hasNext();)
        parts << match.next().captured();
    parts.sort();
    return parts;
}

QString fault(const QString& key, const Text& stored, const Text& fresh)
{
    if (!stored.isFinished || stored.forms.contains(QString()))
        return QStringLiteral("no translation");
    if (stored.forms.size() != fresh.forms.size())
        return QStringLiteral("wrong number of plural forms");
    for (const QString& form : stored.forms) {
        if (keptParts(form) != keptParts(key))
            return QStringLiteral("not all of [%1] in \"%2\"").arg(keptParts(key).join(QLatin1Char(' ')), form);
    }
    // Made out of another language: whoever changed that one has to make this one anew.
    return stored.forms == fresh.forms ? QString() : QStringLiteral("out of date");
}

std::string faults(const Texts& stored, const Texts& fresh)
{
    QStringList lines;
    for (auto text = fresh.begin(); text != fresh.end(); ++text) {
        const auto found = stored.find(text.key());
        const QString wrong =
            found == stored.end() ? QStringLiteral("no entry") : fault(text.key(), *found, text.value());
        if (!wrong.isEmpty())
            lines << QStringLiteral("%1: %2").arg(text.key(), wrong);
    }
    for (const QString& key : stored.keys()) {
        if (!fresh.contains(key))
            lines << QStringLiteral("%1: no such text any more").arg(key);
    }
    return lines.join(QLatin1Char('\n')).toStdString();
}

class TranslationFiles : public ::testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        static const QTemporaryDir folder;
        s_fresh = QDir(folder.path());
        for (const QString& name : names())
            QFile::copy(stored().filePath(name), s_fresh.filePath(name));
        QProcess update;
        update.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        update.start(sources + QLatin1String("/tools/update-translations"), {QStringLiteral("--in"), folder.path()});
        ASSERT_TRUE(update.waitForFinished(120'000));
        ASSERT_EQ(update.exitCode(), 0);
    }

    static QDir stored() { return QDir(sources + QLatin1String("/translations")); }
    static QStringList names() { return stored().entryList({QStringLiteral("*.ts")}); }
    static Texts freshTexts(const QString& name) { return readTexts(s_fresh.filePath(name)); }

private:
    inline static QDir s_fresh;
};

TEST_F(TranslationFiles, HoldEveryTextOfTheSources)
{
    ASSERT_GE(names().size(), 11);
    EXPECT_GT(freshTexts(QStringLiteral("vidora_de.ts")).size(), 100);
    for (const QString& name : names())
        EXPECT_THAT(faults(readTexts(stored().filePath(name)), freshTexts(name)), IsEmpty())
            << "translations/" << name.toStdString() << "; tools/update-translations puts new texts in";
}

TEST_F(TranslationFiles, AreFoundWantingWhereATextIsAmiss)
{
    const Texts texts = freshTexts(QStringLiteral("vidora_sr_Latn.ts"));
    const QString place = QStringLiteral("Play %1"), plural = QStringLiteral("%n channels are chosen.");
    ASSERT_TRUE(texts.contains(place) && texts.contains(plural));
    struct Case
    {
        std::function<void(Texts&)> spoil;
        const char* complaint;
    };
    for (const Case& c : {Case{[&](Texts& t) { t.remove(place); }, "Play %1: no entry"},
                          Case{[&](Texts& t) { t[place].isFinished = false; }, "no translation"},
                          Case{[&](Texts& t) { t[plural].forms[1].clear(); }, "no translation"},
                          Case{[&](Texts& t) { t[place].forms[0] = QStringLiteral("Pusti"); }, "not all of [%1]"},
                          Case{[&](Texts& t) { t[plural].forms.removeLast(); }, "plural forms"},
                          Case{[&](Texts& t) { t[place].forms[0] += QLatin1Char('!'); }, "out of date"},
                          Case{[&](Texts& t) { t[QStringLiteral("Gone")] = {}; }, "Gone: no such text"}}) {
        Texts spoilt = texts;
        c.spoil(spoilt);
        EXPECT_THAT(faults(spoilt, texts), HasSubstr(c.complaint));
    }
}

} // namespace
} // namespace vidora
