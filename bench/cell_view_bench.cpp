// The picture of the simulated cell: one frame while the robot moves above two pallets. Floor: as many parallelograms of the
// size of a face as are seen, filled and outlined by the same painter.

#include "panel/cell_drawing.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <benchmark/benchmark.h>

#include <cmath>

namespace {

const QSize kPixels(640, 420);

/// Pallets with layers of ten by ten boxes.
panel::CellScene scene(int layers)
{
    panel::CellScene cell;
    for (int side = 0; side < 2; ++side) {
        panel::CellPallet &pallet = cell.pallets[static_cast<std::size_t>(side)];
        const double y = side == 0 ? 1200 : -1200;
        pallet.pallet = {0, y, -650, 0, 1200, 1000, 144};
        for (int box = 0; box < layers * 100; ++box)
            pallet.boxes.append({(box / 10 % 10 - 4.5) * 118, y + (box % 10 - 4.5) * 98,
                                 -548.0 + box / 100 * 60, 0, 116, 96, 60});
    }
    cell.waiting = {1300, 0, -100, 0, 116, 96, 60};
    return cell;
}

void moveOn(panel::CellScene *cell, int frame)
{
    cell->carried = {300 + 200 * std::sin(frame * 0.1), 1000, 900, 0, 116, 96, 60};
    cell->joints[0] = std::sin(frame * 0.1);
}

void frameOfTheCell(benchmark::State &state)
{
    panel::CellScene cell = scene(static_cast<int>(state.range(0)));
    panel::CellDrawing drawing;
    drawing.setTurn(-25);
    QImage image(kPixels, QImage::Format_ARGB32_Premultiplied);
    int frame = 0;
    for (auto _ : state) {
        moveOn(&cell, ++frame);
        drawing.setScene(cell);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(320, 240);
        painter.scale(0.15, 0.15);
        drawing.paint(&painter, 0.15);
    }
    state.SetLabel("boxes: " + std::to_string(2 * cell.pallets[0].boxes.size()));
}

void floorOfTheCell(benchmark::State &state)
{
    const int layers = static_cast<int>(state.range(0));
    const int faces = 2 * (100 + layers * 20) + 60 * 3; // tops, two walls, and the blocks of the robot
    QImage image(kPixels, QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state) {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(Qt::black, 1));
        painter.setBrush(Qt::lightGray);
        for (int i = 0; i < faces; ++i) {
            const double x = i % 30 * 20, y = i / 30 * 12;
            const QPointF corners[] = {{x, y}, {x + 14, y + 7}, {x + 14, y + 15}, {x, y + 8}};
            painter.drawConvexPolygon(corners, 4);
        }
    }
}

BENCHMARK(frameOfTheCell)->Arg(1)->Arg(5)->Arg(20)->Unit(benchmark::kMillisecond);
BENCHMARK(floorOfTheCell)->Arg(1)->Arg(5)->Arg(20)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
