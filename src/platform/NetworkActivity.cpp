#include "platform/NetworkActivity.h"

namespace vidora {

NetworkActivity::NetworkActivity(std::function<void(bool)> setNetworkActivityIndicatorVisible)
    : m_indicator(std::move(setNetworkActivityIndicatorVisible))
    , m_queue(DispatchQueue::serial(QStringLiteral("ostrel.tv.networkActivity")))
{
}

void NetworkActivity::setVisible(bool visible) const
{
    // A copy, since the main thread may come to it after this object is gone.
    m_mainBlocks.async([indicator = m_indicator, visible] {
        if (indicator)
            indicator(visible);
    });
}

void NetworkActivity::startNetworkActivity()
{
    m_queue->async([this] {
        if (m_count == 0)
            setVisible(true);
        ++m_count;
    });
}

void NetworkActivity::stopNetworkActivity()
{
    m_queue->async([this] {
        if (m_count == 1)
            setVisible(false);
        if (m_count > 0)
            --m_count;
    });
}

} // namespace vidora
