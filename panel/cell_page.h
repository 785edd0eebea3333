#pragma once

#include "ix/stretched_column.h"
#include "ix/xtheme.h"
#include "orba/module_object.h"

#include <QTimer>
#include <QVector>
#include <QWidget>

#include <memory>

class QPushButton;
class QTableView;

namespace Ui {
class PanelCellPage;
}

namespace panel {

class CellTable;

/// The page of the simulated cell: a live picture of it, its buttons, lamps and inputs, its programs with what they are at,
/// their variables, faults to bring about, and what went wrong. It shows what the controller tells, asks everything of it by
/// requests, and follows it only while it is seen.
class CellPage : public QWidget
{
    Q_OBJECT

public:
    static constexpr int kFrameMs = 40; ///< 25 pictures a second at most

    explicit CellPage(QWidget *parent = nullptr);
    ~CellPage() override;

    /// Shows what the controller tells now. Done by itself while the page is seen.
    void refresh();

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void setupPicture();
    void setupRun();
    void setupDesk();
    void setupTables();
    CellTable *setupTable(QTableView *view, int stretched, ix::StretchedColumn::Least least);
    void follow();
    void nameTitles();

    void showProgram();
    void showPart();
    void showDesk();
    void showSpeed();
    void showFaults();
    void showViolations();
    void showForce();

    /// Sends a request and says how it went; `what` is what was asked for.
    void ask(const QString &request, const orba::Node &payload, const QString &what);
    void showMessage(const QString &text, ix::xtheme::State state);
    void press(const QString &signal, double seconds, const QString &what);
    void force(bool on);
    void setVariable();
    void changeSpeed(double factor);

    std::unique_ptr<Ui::PanelCellPage> ui_;
    CellTable *signals_ = nullptr;
    CellTable *tasks_ = nullptr;
    CellTable *variables_ = nullptr;
    CellTable *violations_ = nullptr;
    QVector<QPushButton *> desk_; ///< in the order of `deskButtons`
    QVector<QPushButton *> faults_;
    std::unique_ptr<QObject> follower_; ///< while the page is seen
    QTimer frame_;                      ///< one picture for all changes of that time
    int asked_ = 0;                     ///< requests so far; only the last one's answer is shown
};

} // namespace panel
