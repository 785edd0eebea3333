#pragma once

#include "orba/module_object.h"

#include <QDialog>
#include <QPointer>

#include <memory>

namespace Ui {
class PatternNameDialog;
}

/// Names and makes a new pattern of a recipe, empty or as a clone of the present one. A refused name is told as a
/// warning and leaves the dialog open.
class PALX_API PatternNameDialog : public QDialog
{
    Q_OBJECT

public:
    ~PatternNameDialog() override;

    /// The confirm button: makes the pattern and closes, or says why not.
    void work();
    /// Of the pattern that was made; empty before.
    QString getPatternName() const { return name_; }
    /// Whether the items of the present pattern are to be copied.
    bool isClone() const;

Q_SIGNALS:
    /// The pattern is there, with its items.
    void patternAdded(const QString &name);

protected:
    /// `patterns` is the recipe's "patterns", not owned; the dialog is refused when it ends.
    PatternNameDialog(orba::ModuleObject *patterns, const QString &currentPattern, QWidget *parent);
    virtual QString titleText() const = 0;
    /// After the constructors, which cannot ask for the title.
    void showTitle();
    void changeEvent(QEvent *event) override;

private:
    std::unique_ptr<Ui::PatternNameDialog> ui_;
    QPointer<orba::ModuleObject> patterns_;
    QString current_;
    QString name_;
};

/// Adds a further pattern beside those that are there.
class PALX_API NewPatternDialog : public PatternNameDialog
{
    Q_OBJECT

public:
    NewPatternDialog(orba::ModuleObject *patterns, const QString &currentPattern, QWidget *parent);

protected:
    QString titleText() const override;
};

/// Adds the pattern that something else needs first: a recipe without any gets its first one.
class PALX_API AddPatternDialog : public PatternNameDialog
{
    Q_OBJECT

public:
    AddPatternDialog(orba::ModuleObject *patterns, const QString &currentPattern, QWidget *parent);

protected:
    QString titleText() const override;
};
