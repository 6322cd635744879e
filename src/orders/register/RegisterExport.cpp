#include "RegisterExport.h"

#include "TListViewModel.h"

#include <QSaveFile>

namespace RegisterExport {

namespace {

int exportedColumns(const TListViewModel &list)
{
    return std::min(list.columns(), ExportedColumns);
}

} // namespace

QString headerLine(const TListViewModel &list)
{
    QString line;
    for (int column = 0; column < exportedColumns(list); ++column)
        line += list.columnCaption(column) + u';';
    return line.left(HeaderLength);
}

QString rowLine(const TListViewModel &list, int row)
{
    QString line = list.text(row, 0);
    for (int column = 1; column < exportedColumns(list); ++column)
        line += QStringLiteral("###") + list.text(row, column);
    return line;
}

bool write(const TListViewModel &list, const QString &path)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    QByteArray text = headerLine(list).toUtf8() + "\r\n";
    for (int row = 0; row < list.rows(); ++row)
        text += rowLine(list, row).toUtf8() + "\r\n";
    file.write(text);
    return file.commit();
}

} // namespace RegisterExport
