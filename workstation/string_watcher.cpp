#include "workstation/string_watcher.h"

void StringWatcher::setValue(QString value)
{
    if (value == value_)
        return;
    value_ = value;
    Q_EMIT valueChanged(value);
}
