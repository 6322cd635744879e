#pragma once

#include <QPixmap>

// The picture at the left of every form's header: a loaded lorry.
QPixmap headerPicture(int size);
