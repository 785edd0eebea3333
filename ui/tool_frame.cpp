#include "ui/tool_frame.h"

#include "stack/recipe_fields.h"
#include "stack/recipe_points.h"
#include "ui_tool_frame.h"
#include "workstation/plugin_node.h"

using orba::ModuleObject;
using palx::ToolKeeper;

namespace {

constexpr int kMass = palx::kToolNumbers - 1;
constexpr int kFirstOfLoad = 6;
const QString kFirstTouch = QStringLiteral("ref_p");
const QString kSecondTouch = QStringLiteral("rotate_p");

QString suffix(int i)
{
    return palx::unitSuffix(i == kMass ? palx::FieldUnit::Kilogram : palx::FieldUnit::Millimetre);
}

} // namespace

ToolFrame::ToolFrame(QWidget *parent) : RecipeFrame(parent), ui_(std::make_unique<Ui::ToolFrame>())
{
    ui_->setupUi(this);
    for (int i = 0; i < palx::kToolNumbers; ++i) {
        fields_ << findChild<QDoubleSpinBox *>(QStringLiteral("spnTool%1").arg(i));
        fields_[i]->setLocale(QLocale::c());
        if (i >= kFirstOfLoad)
            fields_[i]->setSuffix(suffix(i));
        connect(fields_[i], &QDoubleSpinBox::editingFinished, this, &ToolFrame::write);
    }
    for (PointGroup *group : {ui_->grpFirst, ui_->grpTurned}) {
        connect(group, &PointGroup::edited, this, &RecipeFrame::edited);
        connect(group, &PointGroup::refused, this, &RecipeFrame::refused);
    }
    connect(ui_->btnMeasure, &QPushButton::clicked, this, &ToolFrame::measure);
    setTitles();
    setStack(nullptr);
}

ToolFrame::~ToolFrame() = default;

ToolKeeper ToolFrame::keeper() const
{
    return stack() && stack()->getBool("use_global_tool") ? ToolKeeper::Shared : ToolKeeper::Recipe;
}

ModuleObject *ToolFrame::tool() const
{
    if (!stack())
        return emptyMobj();
    return keeper() == ToolKeeper::Shared ? stack()->p(1)->c("global_tool")->cmobj(0) : stack()->c("toolset");
}

/// The record that holds both touches.
ModuleObject *ToolFrame::touches() const
{
    if (!stack())
        return emptyMobj();
    return keeper() == ToolKeeper::Shared ? tool()->c("tool") : stack()->c("tool");
}

void ToolFrame::setTitles()
{
    ui_->grpFirst->setTitle(tr("Touch 1"));
    ui_->grpTurned->setTitle(tr("Touch 2"));
}

QList<double> ToolFrame::shownNumbers() const
{
    QList<double> numbers;
    for (const QDoubleSpinBox *field : fields_)
        numbers << field->value();
    return numbers;
}

void ToolFrame::refresh()
{
    const bool isShared = keeper() == ToolKeeper::Shared;
    const orba::Node &record = tool()->node();
    for (int i = 0; i < fields_.size(); ++i) {
        const palx::ToolNumber &number = palx::toolNumber(keeper(), i);
        fields_[i]->setValue(record.getDouble(orba::Path(number.path)) * number.shown);
        fields_[i]->setEnabled(stack() != nullptr);
    }
    shown_ = shownNumbers();
    ui_->grpFirst->setPoint(touches(), kFirstTouch);
    ui_->grpTurned->setPoint(touches(), kSecondTouch);
    ui_->btnMeasure->setEnabled(stack() != nullptr);
    ui_->lblNote->setText(!stack()   ? QString()
                          : isShared ? tr("The shared tool \"%1\", used by all recipes with \"Shared tool\".")
                                           .arg(tool()->getString("name"))
                                     : tr("The tool of this recipe alone."));
}

void ToolFrame::write()
{
    const QList<double> now = shownNumbers();
    if (!stack() || now == shown_)
        return;
    for (int i = 0; i < now.size(); ++i)
        if (now[i] != shown_[i])
            writeNumber(i, now[i]);
    Q_EMIT edited();
    refresh();
}

void ToolFrame::writeNumber(int i, double shown)
{
    const palx::ToolNumber &number = palx::toolNumber(keeper(), i);
    if (keeper() == ToolKeeper::Recipe) {
        orba::Node record = tool()->node();
        palx::ensureToolsetRecord(record);
        if (record != tool()->node())
            tool()->copyFrom(record);
    }
    tool()->ensure(orba::Path(number.path))->set(nullptr, "", shown / number.shown);
}

void ToolFrame::measure()
{
    const orba::Node &first = touches()->c(kFirstTouch)->node();
    const orba::Node &second = touches()->c(kSecondTouch)->node();
    if (!palx::isTaught(&first) || !palx::isTaught(&second))
        return Q_EMIT refused(tr("Teach both touches first."));
    const palx::ToolMeasure found =
        palx::measureTool(ix::calc::toPose(first), ix::calc::toPose(second),
                          palx::toolPose(tool()->node(), keeper()).translation().z());
    if (!found.error.isEmpty())
        return Q_EMIT refused(found.error);
    writeNumber(0, found.x * palx::toolNumber(keeper(), 0).shown);
    writeNumber(1, found.y * palx::toolNumber(keeper(), 1).shown);
    Q_EMIT edited();
    refresh();
}

void ToolFrame::retranslate()
{
    ui_->retranslateUi(this);
    setTitles();
}
