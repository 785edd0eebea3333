#pragma once

#include "ui/node_binder.h"

#include <QPointer>
#include <QWidget>

class QComboBox;
class QDoubleSpinBox;
class QLabel;
class QSpinBox;

/// One frame of the set-up page: shows a part of a recipe and edits it.
///
/// Fields tied to nodes follow by themselves; whatever is computed from several nodes is shown by `refresh`,
/// which runs when the frame turns to another recipe or is shown, and which the page calls after every edit
/// while the frame is shown.
class PALX_API RecipeFrame : public QWidget
{
    Q_OBJECT

public:
    explicit RecipeFrame(QWidget *parent = nullptr);
    ~RecipeFrame() override;

    /// Turns to another recipe; null shows nothing and edits nothing.
    void setStack(orba::ModuleObject *stack);
    orba::ModuleObject *stack() const { return stack_; }
    virtual void refresh() = 0;
    /// Why a wizard must not go on from this frame; empty when it may.
    virtual QString blockingProblem() const { return QString(); }

Q_SIGNALS:
    /// The operator changed the recipe in this frame.
    void edited();
    /// Something the operator wanted was refused, and why.
    void refused(const QString &reason);

protected:
    NodeBinder *binder() { return &binder_; }
    /// Ties a number field below the stack; range, decimals and unit come from the table of fields.
    template <typename Spin> void bindNumber(Spin *field, const QString &path);
    /// Another recipe is shown, or none.
    virtual void stackChanged() {}
    /// A field was written; what depends on it can be written before `edited` is sent, as part of the same edit.
    virtual void fieldWritten(const QString &) {}
    /// The form's texts and those that code sets.
    virtual void retranslate() = 0;
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    QPointer<orba::ModuleObject> stack_;
    NodeBinder binder_;
};

/// Gives a number field range, decimals and unit of that entry of the table of fields.
PALX_API void setupNumberField(QDoubleSpinBox *field, const QString &specPath);
PALX_API void setupNumberField(QSpinBox *field, const QString &specPath);

/// The feeding directions with their names as data.
PALX_API void fillDirections(QComboBox *combo);

/// A sentence in a coloured label that is hidden while there is nothing to say.
PALX_API void showWarning(QLabel *label, const QString &text);
PALX_API void showWarnings(QLabel *label, const QStringList &texts);

template <typename Spin> void RecipeFrame::bindNumber(Spin *field, const QString &path)
{
    setupNumberField(field, path);
    binder_.bind(field, path);
}
