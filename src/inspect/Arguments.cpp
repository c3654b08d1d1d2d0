#include "inspect/Arguments.h"

#include "inspect/Request.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace vidora::inspect {

namespace {

// Fields that are not texts. Everything is a text on the command line, so their kinds must be known.
const QStringList numberFields{QStringLiteral("type"), QStringLiteral("value"), QStringLiteral("pick"),
                               QStringLiteral("lastAlarmMinutes")};
const QStringList flagFields{QStringLiteral("cyrillicDevice"), QStringLiteral("enabled")};
const QStringList listFields{QStringLiteral("pick"),      QStringLiteral("items"),    QStringLiteral("pages"),
                             QStringLiteral("pageTexts"), QStringLiteral("records"),  QStringLiteral("shows"),
                             QStringLiteral("channels"),  QStringLiteral("favorites")};
const QStringList objectFields{QStringLiteral("entry"), QStringLiteral("responses"), QStringLiteral("shows"),
                               QStringLiteral("favorites")};

QJsonValue valueOf(const QString& field, const QString& text)
{
    if (numberFields.contains(field)) {
        bool isNumber = false;
        const double number = text.toDouble(&isNumber);
        if (!isNumber)
            throw UnusableRequest(QStringLiteral("--%1 takes a number").arg(field));
        return number;
    }
    if (flagFields.contains(field)) {
        if (text != QLatin1String("true") && text != QLatin1String("false"))
            throw UnusableRequest(QStringLiteral("--%1 takes true or false").arg(field));
        return text == QLatin1String("true");
    }
    if (objectFields.contains(field)) {
        const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8());
        if (document.isNull())
            throw UnusableRequest(QStringLiteral("--%1 takes JSON").arg(field));
        return document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
    }
    return text;
}

void addField(QJsonObject& request, const QString& field, const QString& text)
{
    const QJsonValue value = valueOf(field, text);
    if (!listFields.contains(field) || value.isArray()) {
        request.insert(field, value);
        return;
    }
    QJsonArray list = request.value(field).toArray();
    list.append(value);
    request.insert(field, list);
}

} // namespace

Arguments readArguments(const QStringList& arguments)
{
    Arguments result;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString& argument = arguments[i];
        if (!argument.startsWith(QLatin1String("--"))) {
            if (result.request.contains(QStringLiteral("command")))
                throw UnusableRequest(QStringLiteral("\"%1\" is one argument too many").arg(argument));
            result.request.insert(QStringLiteral("command"), argument);
            continue;
        }
        const qsizetype equals = argument.indexOf(QLatin1Char('='));
        const QString name = argument.mid(2, equals < 0 ? -1 : equals - 2);
        if (name == QLatin1String("help")) {
            result.help = true;
            return result;
        }
        if (name == QLatin1String("batch")) {
            result.batch = true;
            continue;
        }
        if (equals < 0 && ++i >= arguments.size())
            throw UnusableRequest(QStringLiteral("%1 needs a value").arg(argument));
        const QString value = equals < 0 ? arguments[i] : argument.mid(equals + 1);
        if (name == QLatin1String("clock")) {
            result.clock = instantFromIsoText(value);
            if (!result.clock)
                throw UnusableRequest(QStringLiteral("--clock takes a time such as 2026-11-22T19:00:00Z"));
        } else if (name == QLatin1String("endpoints")) {
            result.endpointsFile = value;
        } else if (name == QLatin1String("icons")) {
            result.iconFolder = value;
        } else {
            addField(result.request, name, value);
        }
    }
    if (!result.batch && !result.request.contains(QStringLiteral("command")))
        throw UnusableRequest(QStringLiteral("a command, or --batch, is wanted"));
    if (result.batch && !result.request.isEmpty())
        throw UnusableRequest(QStringLiteral("--batch takes its requests from standard input"));
    return result;
}

} // namespace vidora::inspect
