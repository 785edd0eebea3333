#pragma once

#include "orba/module_object.h"
#include "pattern/rules/pattern_template.h"

#include <QDialog>
#include <QPointer>

#include <memory>

class PatternScene;
class QSpinBox;
namespace Ui {
class PatternTemplateDialog;
}

/// Appends products by a template to the pattern that a scene shows. What is typed is kept in the recipe at once,
/// also when the dialog is cancelled; nothing is added unless all of it may be.
class PALX_API PatternTemplateDialog : public QDialog
{
    Q_OBJECT

public:
    /// Neither is owned; the dialog is refused when one of them ends.
    PatternTemplateDialog(orba::ModuleObject *stack, PatternScene *scene, QWidget *parent);
    ~PatternTemplateDialog() override;

    /// Shows the kind and the numbers of "pattern_cfg.template".
    void loadCfg();
    /// Writes them there; missing keys are made.
    void saveCfg();
    /// Shows the fields and the picture of the chosen kind and writes it.
    void patternChanged();
    /// Why the template must not be applied; empty when it may.
    QString checkTemplate();
    /// Adds the items, or says why not and adds none.
    bool addTemplate();

protected:
    void changeEvent(QEvent *event) override;

private:
    struct Field
    {
        palx::TemplateField spec;
        QSpinBox *spin;
    };
    void fillKinds();
    void saveKind();
    void showFields();
    void showImage();
    void confirm();

    std::unique_ptr<Ui::PatternTemplateDialog> ui_;
    QPointer<orba::ModuleObject> stack_;
    QPointer<PatternScene> scene_;
    QVector<Field> fields_;
};
