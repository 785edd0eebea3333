#pragma once

#include "workstation/removable_media.h"

#include <QFile>
#include <QObject>
#include <QTimer>

namespace palx {

/// Follows what is plugged in, as long as it lives. The kernel tells of mounts at once; a disk that is pulled without being
/// unmounted, and the stand-in, are noticed within a second. GUI thread.
class PALX_API MediaWatch : public QObject
{
    Q_OBJECT

public:
    explicit MediaWatch(const MediaPlaces &places, QObject *parent = nullptr);

    const PluggedMedia &plugged() const { return plugged_; }
    /// Looks now; sends `changed` when something did.
    void check();

Q_SIGNALS:
    void changed();

private:
    MediaPlaces places_;
    PluggedMedia plugged_;
    QFile mounts_; ///< kept open for the kernel's notice
    QTimer timer_;
};

} // namespace palx
