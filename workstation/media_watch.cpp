#include "workstation/media_watch.h"

#include <QSocketNotifier>

namespace palx {

MediaWatch::MediaWatch(const MediaPlaces &places, QObject *parent)
    : QObject(parent), places_(places), plugged_(pluggedMedia(places)), mounts_(places.mountInfo)
{
    if (!places.mountInfo.isEmpty() && mounts_.open(QIODevice::ReadOnly)) {
        // The kernel marks a change of the list as an exceptional condition of the open file.
        auto *notifier = new QSocketNotifier(mounts_.handle(), QSocketNotifier::Exception, this);
        connect(notifier, &QSocketNotifier::activated, this, &MediaWatch::check);
    }
    connect(&timer_, &QTimer::timeout, this, &MediaWatch::check);
    timer_.start(places_.lookEveryMs);
}

void MediaWatch::check()
{
    PluggedMedia now = pluggedMedia(places_);
    if (now == plugged_)
        return;
    plugged_ = std::move(now);
    Q_EMIT changed();
}

} // namespace palx
