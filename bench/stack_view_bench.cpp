// Drawing a stack of 2,000 boxes while it is turned, against its floor: filling polygons of the same size and
// number that are known already.

#include "pattern/stack_drawing.h"

#include "orba/node.h"
#include "pattern/rules/pattern_items.h"

#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

using orba::Node;
using palx::StackDrawing;

namespace {

constexpr int kLayers = 20;
const QSize kPixels(700, 600); // the stack's part of a panel of 1280 x 800

/// 20 layers of 100 boxes of 115 x 95 x 60 mm, every second one mirrored.
Node largeStack()
{
    Node stack;
    for (const auto &[key, value] :
         {std::pair(u"product_cfg.pallet.length", 1200), std::pair(u"product_cfg.pallet.width", 1000),
          std::pair(u"product_cfg.pallet.height", 150), std::pair(u"product_cfg.product.length", 115),
          std::pair(u"product_cfg.product.width", 95), std::pair(u"product_cfg.product.height", 60)})
        stack.ensure(key)->setInt(value);
    for (const char16_t *name : {u"patterns.A", u"patterns.B"}) {
        Node &pattern = *stack.ensure(name);
        for (int i = 0; i < 100; ++i) {
            palx::PatternItem item;
            item.w = 95;
            item.h = 115;
            item.x = 50 + 100 * (i % 10) + (name[9] == u'B' ? 2 : 0);
            item.y = 60 + 120 * (i / 10);
            palx::appendPatternItem(pattern, item);
        }
    }
    Node &layers = *stack.ensure(u"layers");
    layers.reset(Node::Kind::List);
    for (int i = 0; i < kLayers; ++i)
        layers.add()->ensure(u"pattern")->setString(i % 2 ? QStringLiteral("B") : QStringLiteral("A"));
    return stack;
}

struct Canvas
{
    Canvas() : image(kPixels, QImage::Format_ARGB32_Premultiplied) {}

    void paint(StackDrawing &drawing, bool smooth = true)
    {
        image.fill(0);
        const QRectF bounds = drawing.turningBounds();
        const double scale = std::min(kPixels.width() / bounds.width(), kPixels.height() / bounds.height());
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing, smooth);
        painter.scale(scale, scale);
        painter.translate(-bounds.topLeft());
        drawing.paint(&painter, scale);
    }
    QImage image;
};

void turnStack(benchmark::State &state)
{
    StackDrawing drawing;
    drawing.setStack(largeStack());
    Canvas canvas;
    double turn = 0;
    for (auto round : state) {
        drawing.setTurn(turn += 1.5);
        canvas.paint(drawing, state.range(0));
    }
}
BENCHMARK(turnStack)->ArgName("smooth")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

/// The same picture when nothing has changed: painting alone.
void paintAgain(benchmark::State &state)
{
    StackDrawing drawing;
    drawing.setStack(largeStack());
    drawing.setTurn(20);
    Canvas canvas;
    for (auto round : state)
        canvas.paint(drawing);
}
BENCHMARK(paintAgain)->Unit(benchmark::kMillisecond);

void stepPieces(benchmark::State &state)
{
    StackDrawing drawing;
    drawing.setStack(largeStack());
    Canvas canvas;
    int pieces = 0;
    for (auto round : state) {
        drawing.setPieces(++pieces % 2000);
        canvas.paint(drawing);
    }
}
BENCHMARK(stepPieces)->Unit(benchmark::kMillisecond);

void readStack(benchmark::State &state)
{
    const Node stack = largeStack();
    for (auto round : state) {
        StackDrawing drawing;
        drawing.setStack(stack);
        benchmark::DoNotOptimize(drawing.pieces());
    }
}
BENCHMARK(readStack)->Unit(benchmark::kMillisecond);

/// Floor: as many quadrilaterals as are seen, of about their size, filled and outlined.
void fillPolygons(benchmark::State &state)
{
    const Node stack = largeStack();
    const int faces = palx::visibleFaces(palx::stackCourses(stack, palx::readStackPlan(stack), 2000), 4.3,
                                         palx::IsoProjection(20, {}))
                          .size();
    state.counters["faces"] = faces;
    Canvas canvas;
    for (auto round : state) {
        canvas.image.fill(0);
        QPainter painter(&canvas.image);
        painter.setRenderHint(QPainter::Antialiasing, state.range(0));
        painter.setPen(QPen(Qt::black, 1));
        painter.setBrush(Qt::lightGray);
        for (int i = 0; i < faces; ++i) {
            const QPointF at(i % 25 * 24, i / 25 % 20 * 24);
            const QPointF corners[] = {at, at + QPointF(20, 8), at + QPointF(20, 24), at + QPointF(0, 16)};
            painter.drawConvexPolygon(corners, 4);
        }
    }
}
BENCHMARK(fillPolygons)->ArgName("smooth")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
