#include "workstation/point_editor.h"

#include "workstation/plugin_node.h"

#include <QAbstractSpinBox>
#include <QPointer>

namespace palx {

namespace {

using orba::ModuleObject;

constexpr double kMmPerMetre = 1000.0;
constexpr double kDegreesPerRadian = 57.29577951308232;
constexpr double kPi = 3.141592653589793;

QString elementPath(const char *list, int i)
{
    return QStringLiteral("%1.#%2").arg(QLatin1String(list)).arg(i);
}

bool isEditable(ModuleObject *point)
{
    return point && !point->isEmptyMobj();
}

void showList(ModuleObject *point, const char *list, QWidget *group, const QStringList &names, double factor)
{
    for (int i = 0; i < names.size(); ++i)
        if (QDoubleSpinBox *spin = findDouleSpin(names[i], group))
            spin->setValue(point->getDouble(elementPath(list, i)) * factor);
}

double metres(double millimetres)
{
    return millimetres / kMmPerMetre;
}

double radians(double degrees)
{
    return degrees * kPi / 180.0;
}

/// A listener of the point may end it while it is written.
void writeList(const QPointer<ModuleObject> &point, const char *list, QWidget *group,
               const QStringList &names, double (*convert)(double))
{
    for (int i = 0; i < names.size(); ++i) {
        const QDoubleSpinBox *spin = findDouleSpin(names[i], group);
        if (spin && point)
            point->set(nullptr, elementPath(list, i), convert(spin->value()));
    }
}

void connectSpins(QWidget *group, ModuleObject *point, QObject *context,
                  void (*write)(ModuleObject *, QWidget *))
{
    const QPointer<ModuleObject> target(point); // the node may end before the group
    for (QAbstractSpinBox *spin :
         group->findChildren<QAbstractSpinBox *>(QString(), Qt::FindDirectChildrenOnly))
        QObject::connect(spin, &QAbstractSpinBox::editingFinished, context,
                         [target, group, write] { write(target, group); });
}

} // namespace

QDoubleSpinBox *findDouleSpin(const QString &name, QWidget *group)
{
    for (QDoubleSpinBox *spin : group->findChildren<QDoubleSpinBox *>(QString(), Qt::FindDirectChildrenOnly))
        if (spin->objectName().contains(name))
            return spin;
    return nullptr;
}

void pointTransToGroupSpin(ModuleObject *point, QWidget *group, bool convert)
{
    if (isEditable(point))
        showList(point, "trans", group, trans_list, convert ? kMmPerMetre : 1.0);
}

void pointToGroupSpin(ModuleObject *point, QWidget *group, bool convert)
{
    pointTransToGroupSpin(point, group, convert);
    if (isEditable(point))
        showList(point, "rot", group, rot_list, convert ? kDegreesPerRadian : 1.0);
}

void groupSpinToPointTrans(ModuleObject *point, QWidget *group)
{
    if (isEditable(point))
        writeList(point, "trans", group, trans_list, &metres);
}

void groupSpinToPoint(ModuleObject *point, QWidget *group)
{
    const QPointer<ModuleObject> alive(point);
    groupSpinToPointTrans(point, group);
    if (alive && isEditable(point))
        writeList(alive, "rot", group, rot_list, &radians);
}

void connectSpinChangeToPoint(QWidget *group, ModuleObject *point, QObject *context)
{
    connectSpins(group, point, context, &groupSpinToPoint);
}

void connectSpinChangeToPointTrans(QWidget *group, ModuleObject *point, QObject *context)
{
    connectSpins(group, point, context, &groupSpinToPointTrans);
}

void bindDialogToNode(QDialog *dialog, ModuleObject *node)
{
    QObject::connect(node, &QObject::destroyed, dialog, &QDialog::reject);
}

} // namespace palx
