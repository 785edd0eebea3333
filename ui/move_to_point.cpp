#include "ui/move_to_point.h"

#include "ui/movetodialog.h"
#include "workstation/unique_widget.h"

namespace palx {

void moveToPoint(orba::ModuleObject *point, QWidget *widget)
{
    orba::ModuleObject motion(QStringLiteral("motion"));
    motion.ensure("type")->set(nullptr, "", QStringLiteral("l"));
    motion.ensure("motion.toolset")->set(nullptr, "", QStringLiteral("no use"));
    motion.ensure("motion.speed")->set(nullptr, "", 1000);
    auto *dialog = new MoveToDialog(&motion, point, widget->window());
    makeUniqueMoveDialog(dialog);
    dialog->show();
}

} // namespace palx
