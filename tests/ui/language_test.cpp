#include "nexo/manager_helper.h"
#include "nexo/setting_manager.h"
#include "stack/recipe_layers.h"
#include "support/test_support.h"
#include "ui/base_sub_page.h"
#include "ui/page_fixture.h"
#include "workstation/plugin_node.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTableView>
#include <QtTest/QTest>

#include <gtest/gtest.h>

namespace {

/// The operator's choice for as long as it lives; afterwards English again.
struct Language
{
    explicit Language(const char *key) { choose(key); }
    ~Language() { choose(""); }
    static void choose(const char *key)
    {
        for (const char *alias : {"palx_host", "palx_workstation"})
            nexo::ManagerHelper::instance()->registQrcAlias(QLatin1String(alias));
        nexo::SettingManager::instance()->setOverride(QStringLiteral("language"), QLatin1String(key));
        QCoreApplication::sendPostedEvents(); // windows are told by an event
    }
};

QStringList modelTexts(const QAbstractItemModel *model)
{
    QStringList texts;
    for (int column = 0; column < model->columnCount(); ++column) {
        texts << model->headerData(column, Qt::Horizontal).toString();
        for (int row = 0; row < qMin(model->rowCount(), 50); ++row)
            texts << model->index(row, column).data().toString();
    }
    return texts;
}

template <typename Widget> QString textOf(const QWidget *widget, QString (Widget::*text)() const)
{
    const auto *typed = qobject_cast<const Widget *>(widget);
    return typed ? (typed->*text)() : QString();
}

/// What a widget itself tells the operator, or somebody who cannot see it.
QStringList ownTexts(const QWidget *widget)
{
    QStringList texts{widget->accessibleName(),          widget->toolTip(),
                      textOf(widget, &QLabel::text),     textOf(widget, &QAbstractButton::text),
                      textOf(widget, &QGroupBox::title), textOf(widget, &QLineEdit::placeholderText),
                      textOf(widget, &QSpinBox::suffix), textOf(widget, &QDoubleSpinBox::suffix)};
    if (const auto *combo = qobject_cast<const QComboBox *>(widget))
        texts << modelTexts(combo->model());
    else if (const auto *view = qobject_cast<const QAbstractItemView *>(widget); view && view->model())
        texts
            << modelTexts(view->model()).mid(qobject_cast<const QTableView *>(view) ? 0 : 1); // hidden header
    return texts;
}

/// "name: text" of all widgets below one.
QStringList allTexts(const QWidget *root)
{
    QStringList texts;
    for (const QWidget *widget : root->findChildren<QWidget *>()) {
        if (widget->objectName().startsWith(QLatin1String("qt_"))) // insides of Qt's own widgets
            continue;
        for (const QString &text : ownTexts(widget))
            if (!text.isEmpty())
                texts << widget->objectName() + QStringLiteral(": ") + text;
    }
    return texts;
}

/// Both pages with a recipe whose layers show every kind of text.
struct FilledPages : Pages
{
    FilledPages()
    {
        orba::ModuleObject *stack = tree.addRecipe("R1");
        palx::insertLayer(stack, -1, palx::kSheetPattern);
        palx::stacksNode()->announceStructure(); // the home page lists it anew
        home->subPages()->openSubPage("project_manager");
        home->subPages()->closeSubPage();
        open("R1");
    }
    /// Once every frame was on show.
    QStringList texts() const
    {
        for (int frame = 0; frame < setup->frames().size(); ++frame)
            setup->showFrame(frame); // fills it
        return allTexts(&center);
    }
};

} // namespace

/// No word of the sources is left on pages that were English before, except names that belong to the data.
TEST(LanguageChange, LeavesNoEnglishWord)
{
    const QRegularExpression word("[A-Za-z]{3,}");
    const FilledPages pages;
    EXPECT_GT(pages.texts().size(), 500);
    for (const char *language : {"ru", "cn", "jp", "kr"}) {
        const Language chosen(language);
        for (const QString &text : pages.texts()) {
            if (text.startsWith(QLatin1String("cmbSpecification: ")))
                continue; // the names of the pallet presets are data
            const QString shown = text.mid(text.indexOf(QLatin1String(": ")) + 2);
            EXPECT_FALSE(shown.contains(word)) << text;
        }
    }
}
