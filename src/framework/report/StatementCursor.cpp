#include "StatementCursor.h"

#include "DbError.h"
#include "Statement.h"

bool StatementCursor::first()
{
    m_statement.exec();
    return !m_statement.atEnd();
}

bool StatementCursor::next()
{
    return m_statement.next();
}

QVariant StatementCursor::value(const QString &column) const
{
    const int index = m_statement.columnIndex(column);
    if (index < 0) {
        throw DbError(QStringLiteral("Brak kolumny %1 w wyniku polecenia: %2")
                          .arg(column, m_statement.text()));
    }
    const QVariant value = m_statement.value(index);
    // Text blobs arrive as bytes.
    if (value.typeId() == QMetaType::QByteArray)
        return QString::fromUtf8(value.toByteArray());
    return value;
}

std::function<QVariant()> StatementCursor::field(const QString &column) const
{
    return [this, column] { return value(column); };
}
