#include "workstation/recipe_transfer.h"

#include "workstation/config_log.h"
#include "workstation/controller_sync.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace palx {

namespace {

struct TransferText
{
    Q_DECLARE_TR_FUNCTIONS(TransferText)
};

} // namespace

void finishImport()
{
    recordCfgLog(TransferText::tr("Import success!"), false);
    saveAllToRC(false);
}

void finishExport(const QString &file, bool isSynced)
{
    if (!isSynced)
        recordCfgLog(
            TransferText::tr("%1: the disk did not take everything. Do not pull it out; export again.")
                .arg(file),
            true);
    else
        recordCfgLog(TransferText::tr("Export success to %1!").arg(QFileInfo(file).baseName()), false);
    saveAllToRC(false);
}

void finishTakingBack()
{
    recordCfgLog(TransferText::tr("The last import was taken back."), false);
    saveAllToRC(false);
}

} // namespace palx
