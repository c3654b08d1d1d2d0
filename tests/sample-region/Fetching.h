#pragma once

#include "listings/Page.h"

#include <QString>

#include <httplib.h>
#include <string>

namespace vidora::test {

/// One plain request to a site on the loopback, without a redirect being followed.
inline httplib::Result get(const std::string& address)
{
    const std::size_t path = address.find('/', std::string("http://").size());
    httplib::Client client(address.substr(0, path));
    return client.Get(address.substr(path, address.find('#') - path));
}

/// The page of an answer, read as its type says.
inline Page pageOf(const httplib::Result& answer)
{
    const std::string type = answer->get_header_value("Content-Type");
    const QByteArray body = QByteArray::fromStdString(answer->body);
    if (type == "application/x-xz")
        return Page::fromBytes(body, Page::Container::Xz, "UTF-8");
    if (type == "application/x-gzip")
        return Page::fromBytes(body, Page::Container::Gzip, "UTF-8");
    const std::size_t charset = type.find("charset=");
    return Page::fromBytes(body, Page::Container::None,
                           charset == std::string::npos
                               ? QByteArray("UTF-8")
                               : QByteArray::fromStdString(type.substr(charset + 8)).toUpper());
}

} // namespace vidora::test
