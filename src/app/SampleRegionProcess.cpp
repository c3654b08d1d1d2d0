#include "app/SampleRegionProcess.h"

#include "platform/Log.h"

#include <QCoreApplication>
#include <QProcess>

namespace vidora {

namespace {
constexpr int startLimit = 20'000; // milliseconds
} // namespace

SampleRegionProcess::SampleRegionProcess() = default;

SampleRegionProcess::~SampleRegionProcess()
{
    if (!m_process)
        return;
    m_process->closeWriteChannel(); // it ends when its standard input does
    if (!m_process->waitForFinished(2'000))
        m_process->kill();
    m_process->waitForFinished(2'000);
}

std::optional<QByteArray> SampleRegionProcess::start(std::optional<Instant> clock)
{
    QStringList arguments{QStringLiteral("--with-parent")};
    if (clock)
        arguments << QStringLiteral("--clock") << isoText(*clock);
    m_process = std::make_unique<QProcess>();
    m_process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process->start(QCoreApplication::applicationDirPath() + QLatin1String("/vidora-sample-region"), arguments);
    while (!m_process->canReadLine()) {
        if (!m_process->waitForReadyRead(startLimit)) {
            Log::line(QStringLiteral("sample region: %1").arg(m_process->errorString()));
            return std::nullopt;
        }
    }
    return m_process->readLine();
}

} // namespace vidora
