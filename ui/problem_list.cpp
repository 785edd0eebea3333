#include "ui/problem_list.h"

#include "ix/xtheme.h"
#include "ui/form_style.h"
#include "ui/pattern_view.h"
#include "ui_problem_list.h"

#include <QEvent>

using ix::xtheme::State;

namespace {

constexpr int kMostShown = 200; // nobody reads more; the summary counts all

} // namespace

ProblemList::ProblemList(QWidget *parent) : QWidget(parent), ui_(std::make_unique<Ui::ProblemList>())
{
    ui_->setupUi(this);
    setTouchScrolling(ui_->lstProblems);
}

ProblemList::~ProblemList() = default;

void ProblemList::attach(PatternView *view)
{
    view_ = view;
    connect(ui_->lstProblems, &QListWidget::itemClicked, this, [this](const QListWidgetItem *item) {
        if (view_)
            view_->editing()->select(problems_.value(ui_->lstProblems->row(item)).items);
    });
}

void ProblemList::showProblems(const QVector<palx::PatternProblem> &problems)
{
    if (problems == problems_)
        return;
    problems_ = problems;
    if (isVisible())
        fill();
}

void ProblemList::empty()
{
    ui_->lstProblems->clear();
    ui_->lblResult->clear();
}

void ProblemList::fill()
{
    ui_->lstProblems->clear();
    for (const palx::PatternProblem &problem : problems_.mid(0, kMostShown))
        ui_->lstProblems->addItem(problem.text);
    const int count = problems_.size();
    ui_->lblResult->setText(count == 0 ? tr("Nothing is wrong with the pattern.")
                            : count == 1
                                ? tr("One thing is wrong. Touch it to choose its products.")
                                : tr("%1 things are wrong. Touch one to choose its products.").arg(count));
    ix::xtheme::setState(ui_->lblResult, count == 0 ? State::None : State::Attention);
}

void ProblemList::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    fill();
}

void ProblemList::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui_->retranslateUi(this);
        if (isVisible())
            fill();
        else
            empty();
    }
    QWidget::changeEvent(event);
}

/// Wrapped entries need another height at another width.
void ProblemList::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    ui_->lstProblems->doItemsLayout();
}
