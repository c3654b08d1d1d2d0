#include "platform/ServiceLookup.h"

#include <QByteArray>
#include <QUrl>

#include <arpa/nameser.h>
#include <functional>
#include <netinet/in.h>
#include <resolv.h>
#include <utility>

namespace vidora {

namespace {

constexpr int longestAnswer = 16 * 1024;
constexpr int patience = 2; // seconds, for each of two attempts

/// The whole answer to a question about a name; empty when none came.
QByteArray ask(const QByteArray& name, int type)
{
    struct __res_state state = {};
    if (::res_ninit(&state) != 0)
        return {};
    state.retrans = patience;
    state.retry = 2;
    QByteArray answer(longestAnswer, Qt::Uninitialized);
    const int size = ::res_nquery(&state, name.constData(), ns_c_in, type,
                                  reinterpret_cast<unsigned char*>(answer.data()), longestAnswer);
    ::res_nclose(&state);
    return size <= 0 ? QByteArray() : answer.first(std::min<qsizetype>(size, longestAnswer));
}

/// Walks the records of one type in an answer.
void forEachRecord(const QByteArray& answer, int type, const std::function<void(const ns_msg&, const ns_rr&)>& take)
{
    ns_msg message;
    if (::ns_initparse(reinterpret_cast<const unsigned char*>(answer.constData()), static_cast<int>(answer.size()),
                       &message) != 0)
        return;
    for (int index = 0; index < ns_msg_count(message, ns_s_an); ++index) {
        ns_rr record;
        if (::ns_parserr(&message, ns_s_an, index, &record) == 0 && ns_rr_type(record) == type)
            take(message, record);
    }
}

} // namespace

std::optional<ServiceLocation> DNSServiceLookup::placeIn(const QByteArray& answer)
{
    std::optional<ServiceLocation> best;
    std::pair<int, int> bestRank;
    forEachRecord(answer, ns_t_srv, [&](const ns_msg& message, const ns_rr& record) {
        constexpr int fixedPart = 6; // priority, weight, port
        if (ns_rr_rdlen(record) <= fixedPart)
            return;
        const unsigned char* data = ns_rr_rdata(record);
        char name[NS_MAXDNAME];
        if (::ns_name_uncompress(ns_msg_base(message), ns_msg_end(message), data + fixedPart, name, sizeof name) < 0)
            return;
        const QString host = QString::fromLatin1(name);
        const std::pair rank(static_cast<int>(ns_get16(data)), -static_cast<int>(ns_get16(data + 2)));
        if (host.isEmpty() || host == QLatin1String(".") || (best && rank >= bestRank)) // "." says that there is none
            return;
        best = ServiceLocation{host, static_cast<int>(ns_get16(data + 4)), {}};
        bestRank = rank;
    });
    return best;
}

QString DNSServiceLookup::pathIn(const QByteArray& answer)
{
    QString path;
    forEachRecord(answer, ns_t_txt, [&](const ns_msg&, const ns_rr& record) {
        const unsigned char* data = ns_rr_rdata(record);
        for (int at = 0; at < ns_rr_rdlen(record); at += 1 + data[at]) {
            const int size = std::min<int>(data[at], ns_rr_rdlen(record) - at - 1);
            const QByteArray text(reinterpret_cast<const char*>(data + at + 1), size);
            if (path.isEmpty() && text.startsWith("path="))
                path = QString::fromUtf8(text.mid(5));
        }
    });
    return path;
}

std::optional<ServiceLocation> DNSServiceLookup::find(const QString& service, const QString& domain)
{
    const QByteArray host = QUrl::toAce(domain);
    if (host.isEmpty() || !host.contains('.'))
        return std::nullopt;
    const QByteArray name = service.toLatin1() + '.' + host;
    auto place = placeIn(ask(name, ns_t_srv));
    if (place)
        place->path = pathIn(ask(name, ns_t_txt));
    return place;
}

} // namespace vidora
