#include "panel/problem_page.h"

#include "ix/xtheme.h"

#include <QFrame>
#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

namespace panel {

namespace {

QLabel *addLine(QVBoxLayout *column, const QString &text, const QString &role)
{
    if (text.isEmpty())
        return nullptr;
    auto *label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setWordWrap(true);
    label->setObjectName(QStringLiteral("problemText"));
    label->setAccessibleName(text);
    ix::xtheme::setRole(label, role);
    column->addWidget(label);
    return label;
}

QFrame *problemCard(const host::Problem &problem)
{
    auto *card = new QFrame;
    ix::xtheme::setRole(card, QStringLiteral("card"));
    auto *column = new QVBoxLayout(card);
    addLine(column, problem.what, QStringLiteral("section"));
    addLine(column, problem.where, QStringLiteral("hint"));
    addLine(column, problem.why, QString());
    return card;
}

} // namespace

ProblemPage::ProblemPage(const QList<host::Problem> &problems, QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("problemPage"));
    auto *content = new QWidget;
    auto *cards = new QVBoxLayout(content);
    for (const host::Problem &problem : problems)
        cards->addWidget(problemCard(problem));
    cards->addStretch();
    auto *area = new QScrollArea(this);
    area->setObjectName(QStringLiteral("problemArea"));
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff); // texts wrap
    area->setFrameShape(QFrame::NoFrame);
    area->setWidget(content);
    auto *column = new QVBoxLayout(this);
    title_ = addLine(column, tr("The panel did not start completely"), QStringLiteral("title"));
    column->addWidget(area);
}

/// The problems stay as they were told.
void ProblemPage::retranslate()
{
    title_->setText(tr("The panel did not start completely"));
    title_->setAccessibleName(title_->text());
}

} // namespace panel
