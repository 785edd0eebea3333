#include "panel/shown_report.h"

#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <cstdio>

namespace panel {

ShownReport::ShownReport(QWidget *window) : QObject(window)
{
    window->installEventFilter(this);
}

bool ShownReport::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Paint) {
        watched->removeEventFilter(this);
        QTimer::singleShot(0, this, [this] { // the children have painted then, too
            std::puts("shown");
            std::fflush(stdout);
            deleteLater();
        });
    }
    return false;
}

} // namespace panel
