#include "KsefFixture.h"

#include <QFile>

const QDateTime KsefFixture::Created(QDate(2026, 7, 10), QTime(9, 30), Qt::UTC);

void KsefFixture::SetUp()
{
    InvoicingFixture::SetUp();
    invoice = addInvoice();
    addPosition(invoice, QStringLiteral("Usługa transportowa"), 1, 1000, 1);
}

QByteArray KsefFixture::fileText(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
