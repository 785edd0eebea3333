// Editing a pattern of 200 products by hand: the work of one mouse move while a product is dragged on the page of
// patterns, and one repaint of a plan that fills a panel of 1280 x 800. The floor of a move is one comparison of the bare
// rectangles of every pair; the floor of a repaint is the same rectangles, arrows and texts painted from a list.

#include "ix/xtheme.h"
#include "orba/module_object.h"
#include "pattern/patternscene.h"
#include "ui/pattern_view.h"
#include "ui/patterns_frame.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>
#include <QMouseEvent>
#include <QPainter>

#include <cmath>

using orba::Node;
using palx::PatternItem;

namespace {

constexpr int kAcross = 10;
constexpr int kAlong = 20;
const QSize kPanel(1280, 800);

/// 200 products of 78 x 58 mm, 2 mm from each other; with `troubled`, every third one comes over its neighbour and
/// every fifth one overlaps the next.
Node pattern(bool troubled)
{
    Node node;
    for (int i = 0; i < kAcross * kAlong; ++i) {
        PatternItem item;
        item.w = 78;
        item.h = 58;
        item.x = 40 + 80 * (i % kAcross) + (troubled && i % 5 == 0 ? 10 : 0);
        item.y = 30 + 60 * (i / kAcross);
        item.index = i + 1;
        item.directionText = QString::fromLatin1(troubled && i % 3 == 0 ? "BottomRight" : "TopLeft");
        item.dx = item.dy = 40;
        palx::appendPatternItem(node, item);
    }
    return node;
}

void fillRecipe(orba::ModuleObject *stack, bool troubled)
{
    Node recipe;
    for (const auto &[key, value] :
         {std::pair(u"product_cfg.pallet.length", 1200), std::pair(u"product_cfg.pallet.width", 800),
          std::pair(u"product_cfg.product.length", 58), std::pair(u"product_cfg.product.width", 78),
          std::pair(u"product_cfg.product.height", 60),
          std::pair(u"automatic_stacker.min_product_spacing", 2)})
        recipe.ensure(key)->setInt(value);
    recipe.ensure(u"patterns.A")->assign(pattern(troubled));
    stack->copyFrom(recipe);
}

/// The page of patterns with such a recipe, shown.
struct Page
{
    explicit Page(bool troubled)
    {
        fillRecipe(&stack, troubled);
        frame.setStack(&stack);
        frame.resize(kPanel);
        frame.show();
        QApplication::processEvents();
        view = frame.findChild<PatternView *>();
    }
    void mouse(QEvent::Type type, const QPointF &plan) const
    {
        QMouseEvent event(type, view->mapFromScene(plan), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(view->viewport(), &event);
    }
    orba::ModuleObject stack;
    PatternsFrame frame;
    PatternView *view;
};

void moveOne(benchmark::State &state)
{
    Page page(state.range(0));
    const QPointF middle(440, 630);
    page.mouse(QEvent::MouseButtonPress, middle);
    double turn = 0;
    for (auto round : state) {
        turn += 0.37;
        page.mouse(QEvent::MouseMove, middle + QPointF(60 * std::cos(turn), 60 * std::sin(turn)));
    }
    page.mouse(QEvent::MouseButtonRelease, middle);
}
BENCHMARK(moveOne)->ArgName("troubled")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void comparePairsBare(benchmark::State &state)
{
    struct Box
    {
        double left, top, right, bottom;
    };
    std::vector<Box> boxes;
    for (const PatternItem &item : palx::readPatternItems(pattern(true), 78, 58))
        boxes.push_back({item.x - 39, item.y - 29, item.x + 39, item.y + 29});
    for (auto round : state) {
        int found = 0;
        for (std::size_t i = 0; i < boxes.size(); ++i) {
            for (std::size_t j = i + 1; j < boxes.size(); ++j)
                found += boxes[i].left < boxes[j].right && boxes[j].left < boxes[i].right &&
                         boxes[i].top < boxes[j].bottom && boxes[j].top < boxes[i].bottom;
        }
        benchmark::DoNotOptimize(found);
    }
}
BENCHMARK(comparePairsBare)->Unit(benchmark::kMillisecond);

void repaintView(benchmark::State &state)
{
    orba::ModuleObject stack;
    fillRecipe(&stack, state.range(0));
    PatternScene scene;
    scene.setStack(&stack);
    scene.setPattern(stack.r("patterns.A"));
    PatternView view;
    view.showPlan(&scene);
    view.resize(kPanel);
    view.show();
    view.editing()->select({44, 45, 46});
    QApplication::processEvents();
    for (auto round : state)
        view.viewport()->repaint();
}
BENCHMARK(repaintView)->ArgName("troubled")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void paintBare(benchmark::State &state)
{
    const auto items = palx::readPatternItems(pattern(false), 78, 58);
    const double scale = 700.0 / 1200;
    QImage image(kPanel, QImage::Format_ARGB32_Premultiplied);
    QFont font = QApplication::font();
    font.setPixelSize(12);
    for (auto round : state) {
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setFont(font);
        painter.setBrush(Qt::lightGray);
        for (const PatternItem &item : items) {
            const QPointF middle(item.x * scale + 400, item.y * scale + 50);
            painter.drawRect(QRectF(middle - QPointF(22, 16), QSizeF(44, 32)));
            painter.drawLine(middle, middle + QPointF(15, 15));
            painter.drawText(middle, QString::number(item.index));
        }
    }
}
BENCHMARK(paintBare)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    ix::xtheme::apply(&application);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
