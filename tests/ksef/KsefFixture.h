#pragma once

#include "InvoicingFixture.h"

#include <QDateTime>
#include <QTemporaryDir>

// A company with one issued invoice of one position at 23 %, ready to
// export, and a directory for the files.
class KsefFixture : public InvoicingFixture
{
public:
    // The whole file; empty when there is none.
    static QByteArray fileText(const QString &path);

protected:
    // The moment the tests' documents are made.
    static const QDateTime Created;

    void SetUp() override;

    QTemporaryDir dir;
    int invoice = 0;
};
