#pragma once

#include "orba/export.h"

#include <QAbstractButton>
#include <QPixmap>

class PatternScene;

/// A layout to choose: its name, its plan, and what there is to say about it. The whole card is the button; the
/// chosen one has a heavy frame and a tick.
class PALX_API LayoutPreview : public QAbstractButton
{
    Q_OBJECT

public:
    explicit LayoutPreview(QWidget *parent = nullptr);

    /// Not owned.
    void setScene(PatternScene *scene);
    PatternScene *scene() const { return scene_; }
    /// `facts` stands under the plan; `warning`, when there is one, on a coloured ground below it.
    void setTexts(const QString &name, const QString &facts, const QString &warning);
    QString facts() const { return facts_; }
    QString warning() const { return warning_; }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void forgetPlan();
    const QPixmap &plan(const QSize &size);
    void paintFrame(QPainter *painter) const;
    void paintTexts(QPainter *painter, QRect *rest) const;
    void paintWarning(QPainter *painter, QRect *rest) const;

    PatternScene *scene_ = nullptr;
    QString facts_;
    QString warning_;
    QPixmap plan_; ///< null: to be drawn anew
};
