#include "core/PropertyList.h"

#include "core/PropertyListBounds.h"

#include <QDateTime>
#include <QVariantList>
#include <QVariantMap>

#include <cstdlib>
#include <memory>
#include <plist/plist.h>

namespace vidora {

namespace {

// The library counts dates from 2001-01-01T00:00:00Z.
constexpr qint64 referenceDate = 978'307'200;

struct PlistDeleter
{
    void operator()(void* node) const { plist_free(node); }
};
using Plist = std::unique_ptr<void, PlistDeleter>;

QVariant valueOf(plist_t node);

QString ownedText(char* text, std::uint64_t length)
{
    const QString result = QString::fromUtf8(text, static_cast<qsizetype>(length));
    std::free(text);
    return result;
}

QVariantMap mapOf(plist_t node)
{
    QVariantMap map;
    plist_dict_iter iterator = nullptr;
    plist_dict_new_iter(node, &iterator);
    for (;;) {
        char* key = nullptr;
        plist_t child = nullptr;
        plist_dict_next_item(node, iterator, &key, &child);
        if (!child)
            break;
        map.insert(QString::fromUtf8(key), valueOf(child));
        std::free(key);
    }
    std::free(iterator);
    return map;
}

QVariantList listOf(plist_t node)
{
    QVariantList list;
    const std::uint32_t size = plist_array_get_size(node);
    list.reserve(size);
    for (std::uint32_t i = 0; i < size; ++i)
        list.append(valueOf(plist_array_get_item(node, i)));
    return list;
}

QString textOf(plist_t node)
{
    char* text = nullptr;
    plist_get_string_val(node, &text);
    return text ? ownedText(text, std::char_traits<char>::length(text)) : QString();
}

QByteArray bytesOf(plist_t node)
{
    std::uint64_t length = 0;
    const char* bytes = plist_get_data_ptr(node, &length);
    return QByteArray(bytes, static_cast<qsizetype>(length));
}

QDateTime dateOf(plist_t node)
{
    std::int32_t seconds = 0;
    std::int32_t microseconds = 0;
    plist_get_date_val(node, &seconds, &microseconds);
    return QDateTime::fromMSecsSinceEpoch((referenceDate + seconds) * 1000 + microseconds / 1000, Qt::UTC);
}

QVariant valueOf(plist_t node)
{
    switch (plist_get_node_type(node)) {
    case PLIST_DICT:
        return mapOf(node);
    case PLIST_ARRAY:
        return listOf(node);
    case PLIST_STRING:
        return textOf(node);
    case PLIST_DATA:
        return bytesOf(node);
    case PLIST_DATE:
        return dateOf(node);
    case PLIST_BOOLEAN: {
        std::uint8_t flag = 0;
        plist_get_bool_val(node, &flag);
        return flag != 0;
    }
    case PLIST_UINT: {
        std::uint64_t number = 0;
        plist_get_uint_val(node, &number);
        return QVariant::fromValue(static_cast<qint64>(number));
    }
    case PLIST_REAL: {
        double number = 0;
        plist_get_real_val(node, &number);
        return number;
    }
    default:
        return {};
    }
}

plist_t nodeOf(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::QVariantMap: {
        plist_t node = plist_new_dict();
        const QVariantMap map = value.toMap();
        for (auto item = map.begin(); item != map.end(); ++item)
            plist_dict_set_item(node, item.key().toUtf8().constData(), nodeOf(item.value()));
        return node;
    }
    case QMetaType::QVariantList: {
        plist_t node = plist_new_array();
        for (const QVariant& item : value.toList())
            plist_array_append_item(node, nodeOf(item));
        return node;
    }
    case QMetaType::Bool:
        return plist_new_bool(value.toBool() ? 1 : 0);
    case QMetaType::Int:
    case QMetaType::LongLong:
        return plist_new_uint(static_cast<std::uint64_t>(value.toLongLong()));
    case QMetaType::Double:
        return plist_new_real(value.toDouble());
    default:
        return plist_new_string(value.toString().toUtf8().constData());
    }
}

} // namespace

std::optional<QVariant> readPropertyList(const QByteArray& bytes)
{
    if (!propertyListIsBounded(bytes))
        return std::nullopt;
    plist_t node = nullptr;
    plist_from_memory(bytes.constData(), static_cast<std::uint32_t>(bytes.size()), &node);
    const Plist owner(node);
    if (!node)
        return std::nullopt;
    return valueOf(node);
}

QByteArray writePropertyList(const QVariant& value)
{
    const Plist node(nodeOf(value));
    char* xml = nullptr;
    std::uint32_t length = 0;
    plist_to_xml(node.get(), &xml, &length);
    const QByteArray result(xml, static_cast<qsizetype>(length));
    std::free(xml);
    return result;
}

} // namespace vidora
