#pragma once

#include <QString>
#include <QWidget>

#include <functional>

namespace cli {

/// Opens the dialogs that make patterns and put products into them, over the pattern page of `window`, and shows each in
/// all its variants: `take` gets the dialog and a name for its picture. No pattern is changed. False when the page is not
/// shown.
bool showPatternDialogs(QWidget *window,
                        const std::function<void(QWidget *dialog, const QString &name)> &take);

} // namespace cli
