#include "shell/center_provider.h"

#include "bwaf/center_widget.h"

#include <QCoreApplication>
#include <QPointer>

namespace host {

namespace {

QPointer<bwaf::CenterWidget> given;
QPointer<bwaf::CenterWidget> made;

void endMade()
{
    delete made.data();
}

} // namespace

bwaf::CenterWidget *centerWidget()
{
    if (given)
        return given;
    if (!made) {
        made = new bwaf::CenterWidget;
        qAddPostRoutine(endMade); // a widget must not outlive the application
    }
    return made;
}

void setCenterWidget(bwaf::CenterWidget *center)
{
    given = center;
}

} // namespace host
