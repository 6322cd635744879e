// haulix-shots: renders the module's forms offscreen to PNG files.
//   haulix-shots OUTPUT_DIRECTORY [SHOT_NAME...]
#include "OffscreenProgram.h"
#include "ShotBook.h"
#include "Shots.h"

#include <cstdio>

int main(int argc, char **argv)
{
    const OffscreenProgram program(argc, argv);
    QStringList arguments = program.arguments();
    if (arguments.isEmpty()) {
        std::fprintf(stderr, "użycie: haulix-shots KATALOG [NAZWA...]\n");
        return 2;
    }
    const QString directory = arguments.takeFirst();
    ShotBook book;
    registerShots(book);
    return book.renderAll(directory, arguments) == 0 ? 0 : 1;
}
