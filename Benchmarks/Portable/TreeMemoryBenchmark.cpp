// What a row with id and text takes of memory, against Qt's own item model. Asks the C library's
// allocator, so it counts what really is taken, the allocator's own overhead included.

#include "Benchmarks/Support/RatioRow.h"
#include "Benchmarks/Support/TreeScenes.h"

#include <malloc.h>

using namespace Zorvane::Benchmarks;

namespace {

constexpr int Rows = 100000;

double bytesInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks) + static_cast<double>(info.hblkhd);
}

/** The second filling counts: by then the working memory that a scene keeps is there already. */
template <typename Fill, typename Empty>
double bytesPerRow(Fill fill, Empty empty)
{
    fill();
    empty();
    const double before = bytesInUse();
    fill();
    return (bytesInUse() - before) / Rows;
}

double ourBytesPerRow()
{
    const Items items = makeTree({Rows});
    SyncronizedScene scene("none");
    return bytesPerRow([&] { scene.show(items); }, [&] { scene.show({}); });
}

double peerBytesPerRow()
{
    const Items items = makeTree({Rows});
    RebuiltScene scene("none");
    return bytesPerRow([&] { scene.rebuild(items); }, [&] { scene.rebuild({}); });
}

} // namespace

int main(int argc, char** argv)
{
    addValueRow("tree/memory", "bytes a row", ourBytesPerRow, peerBytesPerRow);
    return runRows(argc, argv);
}
