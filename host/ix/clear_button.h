#pragma once

#include "orba/export.h"

#include <QToolButton>

class QLineEdit;

namespace ix {

/// Stands at the right end of a text field while there is text, as high as the field, and empties it. Qt's own is too
/// small for a finger.
class PALX_API ClearButton : public QToolButton
{
    Q_OBJECT

public:
    /// `field` owns it.
    explicit ClearButton(QLineEdit *field);
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void place();
    void follow(const QString &text);

    QLineEdit *field_;
};

} // namespace ix
