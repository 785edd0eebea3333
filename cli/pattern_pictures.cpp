#include "pattern_pictures.h"

#include "ui/automatic_stacker_dialog.h"
#include "ui/pattern_name_dialog.h"
#include "ui/pattern_template_dialog.h"

#include <QComboBox>
#include <QPushButton>

namespace cli {
namespace {

using Take = std::function<void(QWidget *dialog, const QString &name)>;

/// The dialog that a button of the page opens, or null.
template <typename Dialog> Dialog *openBy(QWidget *window, const char *button)
{
    for (auto *found : window->findChildren<QPushButton *>(QLatin1String(button))) {
        if (found->isVisible())
            found->click();
    }
    return window->findChild<Dialog *>();
}

void takeTemplates(PatternTemplateDialog *dialog, const Take &take)
{
    auto *kinds = dialog->findChild<QComboBox *>(QStringLiteral("cmbTemplate"));
    const int present = kinds->currentIndex();
    for (int kind = 0; kind < kinds->count(); ++kind) {
        kinds->setCurrentIndex(kind);
        take(dialog, QStringLiteral("pattern-template-") + kinds->itemData(kind).toString());
    }
    kinds->setCurrentIndex(present); // it is written at once
    dialog->reject();
}

void takeLayouts(AutomaticStackerDialog *dialog, const Take &take)
{
    take(dialog, QStringLiteral("automatic-stacker"));
    dialog->onGraphViewSelected(0);
    take(dialog, QStringLiteral("automatic-stacker-chosen"));
    dialog->reject();
}

void takeFirstPattern(QWidget *window, const Take &take)
{
    orba::ModuleObject none;
    AddPatternDialog dialog(&none, QString(), window);
    dialog.open();
    take(&dialog, QStringLiteral("first-pattern"));
    dialog.reject();
}

} // namespace

bool showPatternDialogs(QWidget *window, const Take &take)
{
    auto *naming = openBy<NewPatternDialog>(window, "btnAdd");
    if (!naming)
        return false;
    take(naming, QStringLiteral("new-pattern"));
    naming->reject();
    takeFirstPattern(window, take);
    auto *templates = openBy<PatternTemplateDialog>(window, "btnTemplate");
    if (!templates)
        return false;
    takeTemplates(templates, take);
    auto *layouts = openBy<AutomaticStackerDialog>(window, "btnAutomatic");
    if (!layouts)
        return false;
    takeLayouts(layouts, take);
    return true;
}

} // namespace cli
