// haulix-bench: timings of the module's heavy paths, printed as one table.
//   haulix-bench [ROWS] [ORDERS]
#include "BenchTimer.h"
#include "ListViewBench.h"
#include "OffscreenProgram.h"
#include "OrderEditorBench.h"

int main(int argc, char **argv)
{
    const OffscreenProgram program(argc, argv);
    const QStringList arguments = program.arguments();
    const int rows = arguments.isEmpty() ? 100000 : arguments.constFirst().toInt();

    BenchTimer timer;
    benchListView(timer, rows > 0 ? rows : 100000);
    const int orders = arguments.size() > 1 ? arguments.at(1).toInt() : 10000;
    benchOrderEditor(timer, orders > 0 ? orders : 10000);
    timer.print();
    return 0;
}
