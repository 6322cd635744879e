#pragma once

#include <QIcon>
#include <QSize>

// The padlock a closed order carries in the register's list.
QIcon closedOrderIcon(QSize size);
