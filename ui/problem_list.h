#pragma once

#include "ui/pattern_problems.h"

#include <QWidget>

#include <memory>

class PatternView;
namespace Ui {
class ProblemList;
}

/// What is wrong with the pattern of a `PatternView`, as it arises; a touch on an entry chooses the products
/// concerned.
class PALX_API ProblemList : public QWidget
{
    Q_OBJECT

public:
    explicit ProblemList(QWidget *parent = nullptr);
    ~ProblemList() override;

    /// Once; the view must outlive the list's use.
    void attach(PatternView *view);
    void showProblems(const QVector<palx::PatternProblem> &problems);

protected:
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    std::unique_ptr<Ui::ProblemList> ui_;
    PatternView *view_ = nullptr;
    QVector<palx::PatternProblem> problems_;
};
