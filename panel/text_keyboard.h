#pragma once

#include <QDialog>

#include <memory>

class QLineEdit;
class QPushButton;

namespace Ui {
class TextKeyboard;
}

namespace panel {

/// Keyboard on the screen, with layers of Latin and Cyrillic letters, letters with marks, and signs. Keys of a real keyboard
/// work too. "Shift" is for the next letter; two touches hold it.
class TextKeyboard : public QDialog
{
    Q_OBJECT

public:
    /// Begins with the field's text and keeps to its length and validator. The field is not changed.
    explicit TextKeyboard(const QLineEdit &field, QWidget *parent = nullptr);
    ~TextKeyboard() override;

    QString text() const;
    void setVisible(bool visible) override;

private:
    enum class Shift { Off, Once, Held };

    QWidget *makeLayer(int layer);
    void addLayerKeys();
    void press(const QString &letter);
    void setShift(Shift shift);
    void showLetters();

    std::unique_ptr<Ui::TextKeyboard> ui_;
    QList<QPushButton *> letters_;
    Shift shift_ = Shift::Off;
};

/// Opens a keyboard where a text field of the program is touched, while the setting "touch" is on; the text is taken over as
/// if it had been typed. Not for number fields, and not for fields with the property "ownKeys", which have keys beside them.
class TextKeyboardOpener : public QObject
{
    Q_OBJECT

public:
    explicit TextKeyboardOpener(QObject *parent);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    static void open(QLineEdit *field);
};

} // namespace panel
