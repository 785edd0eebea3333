#pragma once

#include <QWidget>

#include <memory>

namespace Ui {
class PanelControllerPage;
}

namespace panel {

/// The panel's page about the robot controller: the link, who the controller is, what it works on. Reads the nodes that
/// the controller mirrors and follows them.
class ControllerPage : public QWidget
{
    Q_OBJECT

public:
    explicit ControllerPage(QWidget *parent = nullptr);
    ~ControllerPage() override;

protected:
    void changeEvent(QEvent *event) override;

private:
    void showLink();
    void showFacts();

    std::unique_ptr<Ui::PanelControllerPage> ui_;
};

} // namespace panel
