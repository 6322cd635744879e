#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

// An e-invoice read back with QXmlStreamReader: the texts of its elements
// by their path below the root ("Fa/P_13_1", "Podmiot2/DaneIdentyfikacyjne/Nazwa").
struct KsefXml
{
    explicit KsefXml(const QByteArray &document);

    // Every text at that path, in document order.
    QStringList all(const QString &path) const;
    // The only text at that path; empty when there is none.
    QString one(const QString &path) const;
    bool has(const QString &path) const { return !all(path).isEmpty(); }

    QString error;   // what the reader found wrong, empty when well-formed
    QString rootNamespace;

private:
    QList<std::pair<QString, QString>> m_texts;
};
