#include "ui/projectparamsetuppage.h"

#include "project/rules/program_template.h"
#include "project/rules/project_record.h"
#include "ui/recipe_frame.h"
#include "ui_projectparamsetuppage.h"
#include "workstation/plugin_node.h"

#include <QComboBox>
#include <QEvent>
#include <QRadioButton>

#include <array>

using orba::Name;
using orba::Node;

namespace {

struct ChoiceFrame
{
    QFrame *frame;
    QStringView key;
};

std::array<ChoiceFrame, 5> choiceFrames(const Ui::ProjectParamSetupPage &ui)
{
    return {{{ui.frameSchemeLayout, u"scheme_layout"},
             {ui.framePalletizingType, u"palletizing_type"},
             {ui.frameTypeOfSucker, u"type_of_sucker"},
             {ui.frameBollard, u"bollard"},
             {ui.frameClapboard, u"clapboard"}}};
}

struct RecipeList
{
    QComboBox *combo;
    QStringView key;
};

std::array<RecipeList, 2> recipeLists(const Ui::ProjectParamSetupPage &ui)
{
    return {{{ui.cmbLeftRecipe, u"left_stack_recipe"}, {ui.cmbRightRecipe, u"right_stack_recipe"}}};
}

/// In the order of the form.
QList<QRadioButton *> buttons(const QFrame *frame)
{
    return frame->findChildren<QRadioButton *>();
}

} // namespace

ProjectParamSetupPage::ProjectParamSetupPage(QWidget *parent)
    : QWidget(parent), ui_(std::make_unique<Ui::ProjectParamSetupPage>())
{
    ui_->setupUi(this);
    connect(palx::triggerNode()->c("refresh_cmb"), &orba::ModuleObject::changed, this,
            &ProjectParamSetupPage::refreshCmb);
    for (const QRadioButton *button : buttons(ui_->frameSchemeLayout))
        connect(button, &QRadioButton::toggled, this, &ProjectParamSetupPage::showPrograms);
    refreshCmb();
    setDefault();
    showPrograms();
}

ProjectParamSetupPage::~ProjectParamSetupPage() = default;

int ProjectParamSetupPage::getCheckedId(const QFrame *frame) const
{
    const QList<QRadioButton *> all = buttons(frame);
    for (int i = 0; i < all.size(); ++i)
        if (all[i]->isChecked())
            return i;
    return -1;
}

void ProjectParamSetupPage::setCheckedId(QFrame *frame, int index)
{
    const QList<QRadioButton *> all = buttons(frame);
    all.value(index, all.first())->setChecked(true);
}

void ProjectParamSetupPage::setDefault()
{
    for (const ChoiceFrame &each : choiceFrames(*ui_))
        setCheckedId(each.frame, 0);
    for (const RecipeList &list : recipeLists(*ui_))
        list.combo->setCurrentIndex(list.combo->count() - 1);
}

void ProjectParamSetupPage::refreshCmb()
{
    const Node &stacks = palx::stacksNode()->node();
    for (const RecipeList &list : recipeLists(*ui_)) {
        const int selected = list.combo->currentIndex();
        QStringList names = palx::sideRecipes(stacks, list.combo == ui_->cmbLeftRecipe);
        if (names.isEmpty())
            names.append(tr("empty"));
        list.combo->clear();
        list.combo->addItems(names);
        list.combo->setCurrentIndex(selected);
    }
}

void ProjectParamSetupPage::rBtnAndCmbUpdated(const QString &projectName)
{
    const orba::ModuleObject *record = palx::projectRecord(projectName);
    if (projectName.isEmpty() || record->isEmptyMobj()) {
        setDefault();
        return;
    }
    for (const ChoiceFrame &each : choiceFrames(*ui_))
        setCheckedId(each.frame, static_cast<int>(record->node().getInt(each.key)));
    for (const RecipeList &list : recipeLists(*ui_))
        list.combo->setCurrentIndex(static_cast<int>(record->node().getInt(list.key)));
}

void ProjectParamSetupPage::dataToOrbaSaved(const QString &projectName) const
{
    Node values;
    for (const ChoiceFrame &each : choiceFrames(*ui_))
        values.ensureChild(Name(each.key))->setInt(getCheckedId(each.frame));
    for (const RecipeList &list : recipeLists(*ui_))
        values.ensureChild(Name(list.key))->setInt(list.combo->currentIndex());
    palx::writeProjectParameters(projectName, values);
}

/// A project without programs would be made without a word.
void ProjectParamSetupPage::showPrograms()
{
    palx::TemplateChoice choice;
    choice.schemeLayout = getCheckedId(ui_->frameSchemeLayout);
    const bool hasPrograms =
        !palx::programTemplate(QStringLiteral("task0"), QStringLiteral("main"), choice).isEmpty();
    showWarning(ui_->lblNoPrograms, hasPrograms ? QString()
                                                : tr("There are no robot programs for this layout: they stay "
                                                     "empty, and the robot does not move."));
}

void ProjectParamSetupPage::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui_->retranslateUi(this);
        refreshCmb();
        showPrograms();
    }
    QWidget::changeEvent(event);
}
