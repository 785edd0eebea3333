#include "ui/form_style.h"

#include "ix/stretched_column.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QEvent>
#include <QHeaderView>
#include <QLineEdit>
#include <QScrollArea>
#include <QScroller>
#include <QTableView>

void setupTable(QTableView *table, int stretched, bool compact)
{
    constexpr int kTouchRow = 44; // a row is a large target by its width
    constexpr int kReadRow = 30;
    constexpr int kNarrowest = 48;
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setAlternatingRowColors(true);
    table->setWordWrap(false);
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(compact ? kReadRow : kTouchRow);
    const auto mode = stretched < 0 ? QHeaderView::Stretch : QHeaderView::ResizeToContents;
    table->horizontalHeader()->setSectionResizeMode(mode);
    if (stretched >= 0)
        new ix::StretchedColumn(table, stretched);
    table->horizontalHeader()->setMinimumSectionSize(kNarrowest);
    table->horizontalHeader()->setHighlightSections(false);
    table->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setTouchScrolling(table);
}

void setFieldMargins(QWidget *form)
{
    constexpr int kPixels = 6;
    for (QLineEdit *field : form->findChildren<QLineEdit *>())
        field->setTextMargins(kPixels, 0, kPixels, 0);
}

void finishField(QWidget *form)
{
    QWidget *focus = form->focusWidget();
    if (focus && focus->hasFocus())
        focus->clearFocus();
}

void setTouchScrolling(QAbstractScrollArea *area)
{
    QScroller::grabGesture(area->viewport(), QScroller::TouchGesture);
    QScrollerProperties properties = QScroller::scroller(area->viewport())->scrollerProperties();
    properties.setScrollMetric(QScrollerProperties::VerticalOvershootPolicy,
                               QScrollerProperties::OvershootAlwaysOff);
    properties.setScrollMetric(QScrollerProperties::HorizontalOvershootPolicy,
                               QScrollerProperties::OvershootAlwaysOff);
    QScroller::scroller(area->viewport())->setScrollerProperties(properties);
}

namespace {

class WheelGuard : public QObject
{
public:
    using QObject::QObject;
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() != QEvent::Wheel)
            return false;
        event->ignore(); // goes on to what the field lies on
        return true;
    }
};

} // namespace

void keepFromWheel(QWidget *form)
{
    auto *guard = new WheelGuard(form);
    for (QWidget *field : form->findChildren<QWidget *>())
        if (qobject_cast<QAbstractSpinBox *>(field) || qobject_cast<QComboBox *>(field))
            field->installEventFilter(guard);
}

QWidget *scrollingForm(QWidget *form)
{
    keepFromWheel(form);
    auto *area = new QScrollArea;
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidget(form);
    setTouchScrolling(area);
    return area;
}
