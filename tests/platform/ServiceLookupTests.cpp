#include "platform/HeaderFields.h"
#include "platform/ServiceLookup.h"

#include <gtest/gtest.h>

namespace vidora {
namespace {

QByteArray name(const char* labels)
{
    QByteArray result;
    for (const QByteArray& label : QByteArray(labels).split('.'))
        result += static_cast<char>(label.size()) + label;
    return result + '\0';
}

QByteArray number(int value)
{
    return QByteArray(1, static_cast<char>(value >> 8)) + static_cast<char>(value & 0xFF);
}

/// An answer of the DNS (RFC 1035, 4) with records of one type.
QByteArray answer(int type, const std::vector<QByteArray>& records)
{
    QByteArray result =
        number(1) + number(0x8180) + number(0) + number(static_cast<int>(records.size())) + number(0) + number(0);
    for (const QByteArray& record : records)
        result += name("_caldavs._tcp.example.org") + number(type) + number(1) + number(0) + number(60) +
                  number(static_cast<int>(record.size())) + record;
    return result;
}

QByteArray service(int priority, int weight, int port, const char* host)
{
    return number(priority) + number(weight) + number(port) + name(host);
}

TEST(ServiceLookup, ReadsTheRecordsOfADomain)
{
    const auto place = DNSServiceLookup::placeIn(
        answer(33, {service(20, 0, 1, "last.example.org"), service(10, 1, 2, "light.example.org"),
                    service(10, 9, 8443, "dav.example.org")}));
    ASSERT_TRUE(place);
    EXPECT_EQ(place->host, QStringLiteral("dav.example.org"));
    EXPECT_EQ(place->port, 8443);
    EXPECT_EQ(DNSServiceLookup::pathIn(answer(16, {QByteArray("\x03"
                                                              "a=b") +
                                                   QByteArray("\x09"
                                                              "path=/dav")})),
              QStringLiteral("/dav"));
    EXPECT_FALSE(DNSServiceLookup::placeIn(answer(33, {number(0) + number(0) + number(0) + QByteArray(1, '\0')})))
        << "the domain says that it has none";
    const QByteArray whole = answer(33, {service(1, 1, 443, "dav.example.org")});
    for (qsizetype size = 0; size < whole.size(); ++size)
        EXPECT_FALSE(DNSServiceLookup::placeIn(whole.left(size))) << size;
    EXPECT_TRUE(DNSServiceLookup::pathIn(answer(16, {QByteArray("\xFF"
                                                                "path=/d")}))
                    .size() < 10);
}

TEST(HeaderFields, AValueDoesNotBecomeAFieldOfItsOwn)
{
    HeaderFields fields;
    fields.set("If-Match", "\"1\"");
    for (const QByteArray& value : {QByteArray("x\r\nHost: evil"), QByteArray("x\ny"), QByteArray("x\0y", 3)}) {
        fields.set("If-Match", value);
        fields.set("X-" + value, "x");
        fields.add("X", value);
    }
    EXPECT_EQ(fields.all().size(), 1);
    EXPECT_EQ(fields.value("If-Match"), "\"1\"");
}

} // namespace
} // namespace vidora
