#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QProcessEnvironment>

#include <gtest/gtest.h>
#include <utility>
#include <vector>

namespace {

constexpr int patience = 60'000; // milliseconds, for a machine under load

QString dataFile(const char* name)
{
    return QStringLiteral(VIDORA_TEST_DATA "/") + QLatin1String(name);
}

/// The real tool, on a device of a given locale.
class Inspect
{
public:
    explicit Inspect(const QStringList& arguments, const QString& locale = QStringLiteral("C.UTF-8"))
    {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("LC_ALL"), locale);
        m_process.setProcessEnvironment(environment);
        m_process.start(QStringLiteral(VIDORA_INSPECT), arguments);
    }

    /// The line that answers one request while the tool goes on; empty when none came.
    QByteArray ask(const QByteArray& request)
    {
        m_process.write(request + '\n');
        while (!m_process.canReadLine()) {
            if (!m_process.waitForReadyRead(patience))
                return {};
        }
        return m_process.readLine();
    }

    /// Ends the input. The exit status, -1 for a crash.
    int end()
    {
        m_process.closeWriteChannel();
        if (m_process.state() != QProcess::NotRunning && !m_process.waitForFinished(patience))
            m_process.kill();
        return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
    }

    QByteArray output() { return m_process.readAllStandardOutput(); }
    QByteArray errors() { return m_process.readAllStandardError(); }

private:
    QProcess m_process;
};

QJsonObject object(const QByteArray& json)
{
    return QJsonDocument::fromJson(json).object();
}

// Requests and answers stand by turns in the file. Each answer must come before the next request is sent.
TEST(InspectBatch, AnswersEachLineAsItComes)
{
    QFile file(dataFile("batch.txt"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    Inspect inspect({QStringLiteral("--clock"), QStringLiteral("2026-11-22T19:00:00Z"), QStringLiteral("--endpoints"),
                     dataFile("endpoints.json"), QStringLiteral("--batch")});
    while (!file.atEnd()) {
        const QByteArray request = file.readLine().trimmed();
        const QByteArray expected = file.readLine().trimmed();
        ASSERT_FALSE(object(expected).isEmpty()) << expected.toStdString();
        const QByteArray answer = inspect.ask(request);
        ASSERT_TRUE(answer.endsWith('\n')) << request.toStdString();
        if (object(expected).contains(QStringLiteral("error")))
            EXPECT_TRUE(object(answer).value(QStringLiteral("error")).isString()) << request.toStdString();
        else
            EXPECT_EQ(object(answer), object(expected)) << request.toStdString() << '\n' << answer.toStdString();
    }
    EXPECT_EQ(inspect.end(), 0);
    EXPECT_EQ(inspect.output(), QByteArray());
}

TEST(InspectBatch, TextIsAsShortAsJsonAllows)
{
    Inspect inspect({QStringLiteral("--batch")});
    EXPECT_EQ(inspect.ask(R"({"command":"trim","text":"\u017divot/\ud83d\ude00\u0000"})"),
              QByteArray("{\"text\":\"Život/😀\\u0000\"}\n"));
    EXPECT_EQ(inspect.ask(R"({"command":"trim","text":"\ud800"})"), QByteArray("{\"text\":\"\\ud800\"}\n"));
    EXPECT_TRUE(object(inspect.ask("{\"command\":\"trim\",\"text\":\"\xff\"}")).contains(QStringLiteral("error")));
    const QByteArray longText(10'000'000, 'a');
    EXPECT_EQ(inspect.ask(R"({"command":"trim","text":")" + longText + "\"}"), "{\"text\":\"" + longText + "\"}\n");
    EXPECT_EQ(inspect.end(), 0);
}

TEST(InspectOnce, AnswersOrRefuses)
{
    const struct
    {
        std::vector<const char*> arguments;
        int status;
        const char* output;
    } cases[] = {
        {{"trim", "--text", "(č  d "}, 0, "{\"text\":\"č d\"}\n"},
        {{"trim", "--text="}, 0, "{\"text\":null}\n"},
        {{"trim", "--text", "--text"}, 0, "{\"text\":\"text\"}\n"},
        {{"label", "--value", "-1"}, 0, "{\"label\":\"Evening Shows\"}\n"},
        {{"cyrillic", "--text", "Njiva", "--language", "sr", "--cyrillicDevice", "true"}, 0, "{\"text\":\"Њивa\"}\n"},
        {{"details"}, 0, "{\"fullInstantDetails\":null}\n"},
        {{"--clock", "2026-11-22T19:00:00Z", "--endpoints", VIDORA_TEST_DATA "/endpoints.json", "--icons", "/", "trim",
          "--text", "a"},
         0,
         "{\"text\":\"a\"}\n"},
        {{}, 2, ""},
        {{"trim"}, 2, ""},
        {{"trim", "--text"}, 2, ""},
        {{"trim", "--text", "a", "b"}, 2, ""},
        {{"unheard-of"}, 2, ""},
        {{"label", "--value", "many"}, 2, ""},
        {{"label", "--value", "1.5"}, 2, ""},
        {{"--clock", "noon", "trim", "--text", "a"}, 2, ""},
        {{"--endpoints", "/nowhere", "trim", "--text", "a"}, 2, ""},
        {{"--batch", "trim"}, 2, ""},
    };
    for (const auto& c : cases) {
        QStringList arguments;
        for (const char* argument : c.arguments)
            arguments << QString::fromUtf8(argument);
        Inspect inspect(arguments);
        const std::string named = arguments.join(QLatin1Char(' ')).toStdString();
        EXPECT_EQ(inspect.end(), c.status) << named;
        EXPECT_EQ(inspect.output(), QByteArray(c.output)) << named;
        EXPECT_EQ(inspect.errors().isEmpty(), c.status == 0) << named;
    }
}

TEST(InspectOnce, TakesTheLocaleOfTheDevice)
{
    for (const auto& [locale, title] : {std::pair("tr_TR.UTF-8", "Işık"), std::pair("sr_RS.UTF-8", "Işik")}) {
        Inspect inspect({QStringLiteral("title"), QStringLiteral("--text"), QStringLiteral("IŞIK")},
                        QLatin1String(locale));
        EXPECT_EQ(inspect.end(), 0);
        EXPECT_EQ(object(inspect.output()).value(QStringLiteral("showTitle")).toString().toStdString(), title);
    }
}

} // namespace
