#include "connectivity.h"

#include <QCoreApplication>
#include <QLoggingCategory>
#include <QMetaObject>
#include <QNetworkInformation>
#include <QThread>

Q_LOGGING_CATEGORY(lcConnectivity, "morvane.backend.connectivity")

namespace {

class SystemConnectivity : public Connectivity
{
public:
    SystemConnectivity()
    {
        // QNetworkInformation is a main-thread singleton; its answers are copied into an atomic
        // so that a call on any thread can read them.
        auto load = [this] {
            if (!QNetworkInformation::loadBackendByFeatures(QNetworkInformation::Feature::Reachability)) {
                qCInfo(lcConnectivity) << "no network information backend; calls never wait for the network";
                return;
            }
            QNetworkInformation *info = QNetworkInformation::instance();
            update(info->reachability());
            QObject::connect(info, &QNetworkInformation::reachabilityChanged, info,
                             [this](QNetworkInformation::Reachability reachability) { update(reachability); });
        };
        QCoreApplication *app = QCoreApplication::instance();
        if (!app) {
            return;
        }
        if (QThread::currentThread() == app->thread()) {
            load();
        } else {
            QMetaObject::invokeMethod(app, load, Qt::QueuedConnection);
        }
    }

    [[nodiscard]] State state() const override { return m_state.load(); }

private:
    void update(QNetworkInformation::Reachability reachability)
    {
        // Local and site reachability still reach a backend on the same network.
        m_state.store(reachability == QNetworkInformation::Reachability::Unknown        ? State::Unknown
                      : reachability == QNetworkInformation::Reachability::Disconnected ? State::Offline
                                                                                        : State::Online);
    }

    std::atomic<State> m_state{State::Unknown};
};

} // namespace

std::shared_ptr<Connectivity> Connectivity::system()
{
    // Deliberately never destroyed: the network information singleton's connection refers to it.
    static auto *instance = new std::shared_ptr<Connectivity>(std::make_shared<SystemConnectivity>());
    return *instance;
}
