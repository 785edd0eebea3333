#include "pattern/generated_items.h"

#include "pattern/patternscene.h"

namespace palx {

void addGeneratedItems(PatternScene *scene, const QVector<PatternItem> &items)
{
    for (const PatternItem &item : items)
        scene->addWobjItem(item.index, item.orient, QPointF(item.x, item.y), QSize(int(item.w), int(item.h)),
                           item.r, {item.dx, item.dy, item.dz}, item.directionText);
}

} // namespace palx
