#include "ui/calibration_frame.h"

#include "ui/incoming_frame.h"
#include "ui/page_scroll.h"
#include "ui/pallet_place_frame.h"
#include "ui/tool_frame.h"
#include "ui_calibration_frame.h"
#include "workstation/plugin_node.h"

CalibrationFrame::CalibrationFrame(QWidget *parent)
    : RecipeFrame(parent), ui_(std::make_unique<Ui::CalibrationFrame>())
{
    ui_->setupUi(this);
    addPart(new ToolFrame); // first: everything else is touched with it
    addPart(new PalletPlaceFrame);
    addPart(new IncomingFrame);
    QAbstractButton *const buttons[] = {ui_->btnTool, ui_->btnPlace, ui_->btnIncoming};
    for (int i = 0; i < parts_.size(); ++i)
        connect(buttons[i], &QAbstractButton::clicked, this,
                [this, i] { ui_->stkParts->setCurrentIndex(i); });
    connect(palx::triggerNode()->c("refresh_data"), &orba::ModuleObject::changed, this,
            [this] { refresh(); });
    setStack(nullptr);
}

CalibrationFrame::~CalibrationFrame() = default;

void CalibrationFrame::addPart(RecipeFrame *part)
{
    parts_ << part;
    ui_->stkParts->addWidget(new PageScroll(part));
    connect(part, &RecipeFrame::edited, this, &RecipeFrame::edited);
    connect(part, &RecipeFrame::refused, this, &RecipeFrame::refused);
}

void CalibrationFrame::stackChanged()
{
    for (RecipeFrame *part : parts_)
        part->setStack(stack());
}

void CalibrationFrame::refresh()
{
    for (RecipeFrame *part : parts_)
        part->refresh();
}

void CalibrationFrame::retranslate()
{
    ui_->retranslateUi(this);
}
