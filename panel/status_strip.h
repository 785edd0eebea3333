#pragma once

#include <QFrame>
#include <QTimer>

class QComboBox;
class QLabel;
class QPushButton;

namespace panel {

/// The line at the foot of the panel: the controller's state, the last notice, the language, the time.
class StatusStrip : public QFrame
{
    Q_OBJECT

public:
    explicit StatusStrip(QWidget *parent = nullptr);
    void showNotice(const QString &level, const QString &text);
    void retranslate();

Q_SIGNALS:
    void noticesWanted();
    void controllerWanted();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void showController();
    void showTime();
    void fillLanguages();
    void chooseLanguage(int index);
    void elideNotice();

    QPushButton *controller_;
    QPushButton *notice_;
    QComboBox *language_;
    QLabel *time_;
    QTimer clock_;
    QString noticeText_;
};

} // namespace panel
