#include "panel/message_dialog.h"

#include "ix/xtheme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace panel {

namespace {

constexpr int kWidth = 640;

QPushButton *addButton(QDialog *dialog, QHBoxLayout *row, const QString &text, const char *name)
{
    auto *button = new QPushButton(text, dialog);
    button->setObjectName(QLatin1String(name));
    button->setAccessibleName(text);
    button->setMinimumWidth(kWidth / 4);
    row->addWidget(button);
    return button;
}

QLabel *addText(QDialog *dialog, QVBoxLayout *column, const QString &text, const char *name)
{
    auto *label = new QLabel(text, dialog);
    label->setObjectName(QLatin1String(name));
    label->setAccessibleName(text);
    label->setTextFormat(Qt::PlainText); // a recipe's name is no markup
    label->setWordWrap(true);
    column->addWidget(label);
    return label;
}

} // namespace

MessageDialog::MessageDialog(const nexo::Message &message, QWidget *parent)
    : QDialog(parent), refusable_(!message.rejectText.isEmpty())
{
    setObjectName(QStringLiteral("messageDialog"));
    setWindowTitle(message.title);
    setMinimumWidth(kWidth);
    auto *column = new QVBoxLayout(this);
    column->setSpacing(3 * ix::xtheme::kGap);
    ix::xtheme::setRole(addText(this, column, message.title, "messageTitle"), QStringLiteral("title"));
    addText(this, column, message.text, "messageText");
    auto *row = new QHBoxLayout;
    row->addStretch();
    column->addLayout(row);
    if (refusable_)
        connect(addButton(this, row, message.rejectText, "messageReject"), &QPushButton::clicked, this,
                &QDialog::reject);
    QPushButton *accept = addButton(this, row, tr("OK"), "messageAccept");
    ix::xtheme::setRole(accept, QStringLiteral("primary"));
    accept->setDefault(true);
    connect(accept, &QPushButton::clicked, this, &QDialog::accept);
}

void MessageDialog::reject()
{
    if (refusable_)
        QDialog::reject();
    else
        accept();
}

PanelPresenter::PanelPresenter()
{
    nexo::ManagerHelper::instance()->setPresenter(this);
}

PanelPresenter::~PanelPresenter()
{
    nexo::ManagerHelper::instance()->setPresenter(nullptr);
}

bool PanelPresenter::ask(const nexo::Message &message)
{
    MessageDialog dialog(message, window_);
    return dialog.exec() == QDialog::Accepted;
}

void PanelPresenter::setWindow(QWidget *window)
{
    window_ = window;
    const auto waiting = std::exchange(waiting_, {});
    for (const auto &notice : waiting)
        Q_EMIT noticed(notice.first, notice.second);
}

void PanelPresenter::notify(const QString &level, const QString &text)
{
    if (window_)
        Q_EMIT noticed(level, text);
    else
        waiting_.append({level, text});
}

} // namespace panel
