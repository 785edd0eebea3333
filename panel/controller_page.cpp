#include "panel/controller_page.h"

#include "orba/module_object.h"
#include "panel/controller_look.h"
#include "ui_controller_page.h"

#include <QEvent>
#include <QFileInfo>

namespace panel {

namespace {

const QStringList &factPaths()
{
    static const QStringList paths{QStringLiteral("nexo.r.name"),
                                   QStringLiteral("nexo.r.id"),
                                   QStringLiteral("nexo.r.version"),
                                   QStringLiteral("quill.project.cur_project"),
                                   QStringLiteral("quill.project.autoload_prj_path"),
                                   QStringLiteral("quill.body.toolset"),
                                   QStringLiteral("nexo.robot.moving"),
                                   QStringLiteral("nexo.robot.fault"),
                                   QStringLiteral("nexo.r.connected")};
    return paths;
}

/// "robot/P/_build/P.prj" is the project P.
QString projectName(const char *path)
{
    return QFileInfo(m(path)->getString()).completeBaseName();
}

QString robotText()
{
    const orba::ModuleObject *robot = m("nexo.robot");
    const QString fault = robot->getString("fault");
    if (!fault.isEmpty())
        return fault;
    return robot->getBool("moving") ? ControllerPage::tr("Moving") : ControllerPage::tr("Standing");
}

} // namespace

ControllerPage::ControllerPage(QWidget *parent)
    : QWidget(parent), ui_(std::make_unique<Ui::PanelControllerPage>())
{
    ui_->setupUi(this);
    followNodes(controllerPaths(), this, [this] { showLink(); });
    followNodes(factPaths(), this, [this] { showFacts(); });
    showLink();
    showFacts();
}

ControllerPage::~ControllerPage() = default;

void ControllerPage::showLink()
{
    const ControllerLook look = controllerLook();
    ui_->lblState->setText(look.text);
    ix::xtheme::setState(ui_->lblState, look.state);
    ui_->lblIcon->setPixmap(ix::xtheme::pixmap(look.glyph, 32));
    ui_->lblLink->setText(controllerTexts().join(QLatin1Char('\n')));
}

/// What the panel remembers of a controller that is not there is no news of it.
void ControllerPage::showFacts()
{
    const bool connected = m("nexo.r")->getBool("connected");
    const struct
    {
        QLabel *label;
        QString text;
    } facts[] = {{ui_->lblName, m("nexo.r")->getString("name")},
                 {ui_->lblVersion, m("nexo.r")->getString("version")},
                 {ui_->lblRobot, m("nexo.r")->getString("id")},
                 {ui_->lblMotion, robotText()},
                 {ui_->lblTool, m("quill.body.toolset")->getString()},
                 {ui_->lblProject, projectName("quill.project.cur_project")},
                 {ui_->lblAutoload, projectName("quill.project.autoload_prj_path")}};
    for (const auto &fact : facts)
        fact.label->setText(connected && !fact.text.isEmpty() ? fact.text : QString(QChar(0x2013)));
}

void ControllerPage::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    ui_->retranslateUi(this);
    showLink();
    showFacts();
}

} // namespace panel
