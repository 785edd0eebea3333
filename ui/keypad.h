#pragma once

#include "orba/export.h"

#include <QDialog>

#include <memory>

class QAbstractSpinBox;

namespace Ui {
class Keypad;
}

/// What a keypad is asked for.
struct PALX_API KeypadRequest
{
    QString title;
    QString unit; ///< "mm"; may be empty
    double minimum = 0;
    double maximum = 100;
    int decimals = 0;
    double value = 0; ///< shown first; the first key replaces it
};

/// Numeric keypad. Keys of a keyboard work too. A number outside of the limits, or none, is refused with the
/// limits shown; a comma counts as a decimal point.
class PALX_API Keypad : public QDialog
{
    Q_OBJECT

public:
    explicit Keypad(KeypadRequest request, QWidget *parent = nullptr);
    ~Keypad() override;

    double value() const;

public Q_SLOTS:
    void accept() override;

protected:
    void changeEvent(QEvent *event) override;

private:
    void connectKeys();
    void type(const QString &text);
    void changeSign();
    bool parse(double *value) const;
    void showLimits(bool refused);

    std::unique_ptr<Ui::Keypad> ui_;
    KeypadRequest request_;
};

/// Opens a keypad where a spin box of a form is touched, while the setting "touch" is on. The number is taken
/// over as if it had been typed: the field sends `editingFinished`.
class PALX_API KeypadOpener : public QObject
{
    Q_OBJECT

public:
    /// Serves every spin box that `form` has now; lives as long as the form.
    explicit KeypadOpener(QWidget *form);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void open(QAbstractSpinBox *field);
};
