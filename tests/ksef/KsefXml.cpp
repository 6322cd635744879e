#include "KsefXml.h"

#include <QXmlStreamReader>

KsefXml::KsefXml(const QByteArray &document)
{
    QXmlStreamReader reader(document);
    QStringList path;
    QString text;
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement:
            if (path.isEmpty() && rootNamespace.isEmpty())
                rootNamespace = reader.namespaceUri().toString();
            path << reader.name().toString();
            text.clear();
            break;
        case QXmlStreamReader::Characters:
            text += reader.text();
            break;
        case QXmlStreamReader::EndElement:
            m_texts.append({path.mid(1).join(u'/'), text.trimmed()});
            path.removeLast();
            text.clear();
            break;
        default:
            break;
        }
    }
    if (reader.hasError())
        error = reader.errorString();
}

QStringList KsefXml::all(const QString &path) const
{
    QStringList found;
    for (const auto &[at, text] : m_texts) {
        if (at == path)
            found << text;
    }
    return found;
}

QString KsefXml::one(const QString &path) const
{
    const QStringList found = all(path);
    return found.size() == 1 ? found.front() : QString();
}
