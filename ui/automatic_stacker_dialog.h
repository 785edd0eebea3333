#pragma once

#include "orba/module_object.h"
#include "pattern/rules/auto_layout.h"
#include "ui/node_binder.h"

#include <QDialog>
#include <QPointer>
#include <QVector>

#include <memory>

class LayoutPreview;
class PatternScene;
class QButtonGroup;
namespace Ui {
class AutomaticStackerDialog;
}

/// Fills the pattern that a scene shows with one of the automatic layouts. Margins and spacing are kept in the
/// recipe at once, also when the dialog is cancelled; the pattern is changed by confirming only.
///
/// Previews 0 to 3 show the four kinds. 4 and 5 are for layouts from elsewhere; they are disabled, and hidden while
/// they are empty. The crisscross can be chosen only when it has a turned row: without one it is a matrix.
class PALX_API AutomaticStackerDialog : public QDialog
{
    Q_OBJECT

public:
    static constexpr int kPreviews = 6;

    /// Neither is owned; the dialog is refused when one of them ends.
    AutomaticStackerDialog(orba::ModuleObject *stack, PatternScene *scene, QWidget *parent);
    ~AutomaticStackerDialog() override;

    /// Lays every preview anew.
    void generate();
    /// The confirm button: replaces the items of the pattern by the chosen layout, or says why not.
    void work();
    /// A preview was touched.
    void onGraphViewSelected(int index);

protected:
    void changeEvent(QEvent *event) override;

private:
    void bindFields();
    void setupFields();
    void initScenes();
    void showLayout(int index, const palx::LayoutInput &input);
    bool isEffective(int index) const;
    palx::AutoLayout chosenLayout() const;
    bool mayOverwrite();

    std::unique_ptr<Ui::AutomaticStackerDialog> ui_;
    QPointer<orba::ModuleObject> stack_;
    QPointer<PatternScene> scene_;
    NodeBinder binder_;
    QVector<LayoutPreview *> previews_;
    QButtonGroup *choice_;
    int selected_ = -1;
};
