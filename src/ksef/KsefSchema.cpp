#include "KsefSchema.h"

#include "KsefError.h"

#include <QFile>
#include <QRegularExpression>

#include <libxml/parser.h>
#include <libxml/xmlIO.h>
#include <libxml/xmlerror.h>
#include <libxml/xmlschemas.h>

#include <cstring>
#include <mutex>

namespace {

constexpr char Scheme[] = "qrc:";

// libxml2 reads the schema and the files it imports through these: a
// "qrc:" address is a file of the program's resources. The imports are
// relative, so they resolve into the same directory.
struct ResourceInput
{
    QByteArray data;
    qsizetype at = 0;
};

int matchesResource(const char *address)
{
    return std::strncmp(address, Scheme, std::strlen(Scheme)) == 0 ? 1 : 0;
}

void *openResource(const char *address)
{
    QFile file(u':' + QString::fromUtf8(address + std::strlen(Scheme)));
    if (!file.open(QIODevice::ReadOnly))
        return nullptr;
    return new ResourceInput{file.readAll(), 0};
}

int readResource(void *context, char *buffer, int length)
{
    auto *input = static_cast<ResourceInput *>(context);
    const int count = int(std::min<qsizetype>(length, input->data.size() - input->at));
    std::memcpy(buffer, input->data.constData() + input->at, std::size_t(count));
    input->at += count;
    return count;
}

int closeResource(void *context)
{
    delete static_cast<ResourceInput *>(context);
    return 0;
}

void registerResourceInput()
{
    static std::once_flag once;
    std::call_once(once, [] {
        xmlInitParser();
        xmlRegisterInputCallbacks(matchesResource, openResource, readResource, closeResource);
    });
}

QString quoted(const QString &value)
{
    const QString shown = value.size() > 60 ? value.left(57) + QStringLiteral("...") : value;
    return QStringLiteral("„%1”").arg(shown);
}

// libxml2 names elements as {namespace}name; the user knows the name.
QString withoutNamespaces(QString text)
{
    static const QRegularExpression ns(QStringLiteral("\\{[^}]*\\}"));
    return text.remove(ns);
}

QString expectedElements(const QString &message)
{
    static const QRegularExpression expected(
        QStringLiteral("Expected is (?:one of )?\\( ?(.*?) ?\\)"));
    const QRegularExpressionMatch match = expected.match(message);
    return match.hasMatch() ? withoutNamespaces(match.captured(1)) : QString();
}

QString contentReason(const QString &message)
{
    const QString expected = expectedElements(message);
    if (message.contains(QLatin1String("Missing child element"))) {
        return expected.isEmpty() ? QStringLiteral("brakuje wymaganego elementu podrzędnego")
                                  : QStringLiteral("brakuje wymaganego elementu podrzędnego "
                                                   "(oczekiwany: %1)")
                                        .arg(expected);
    }
    return expected.isEmpty()
        ? QStringLiteral("element nie jest w tym miejscu dozwolony")
        : QStringLiteral("element nie jest w tym miejscu dozwolony (oczekiwany: %1)").arg(expected);
}

QString reason(const xmlError &error, const QString &value)
{
    const QString message = QString::fromUtf8(error.message).trimmed();
    switch (error.code) {
    case XML_SCHEMAV_ELEMENT_CONTENT:
        return contentReason(message);
    case XML_SCHEMAV_CVC_PATTERN_VALID:
        return QStringLiteral("wartość %1 nie ma postaci wymaganej przez schemat")
            .arg(quoted(value));
    case XML_SCHEMAV_CVC_ENUMERATION_VALID:
        return QStringLiteral("wartość %1 nie należy do wartości dopuszczonych przez schemat")
            .arg(quoted(value));
    case XML_SCHEMAV_CVC_LENGTH_VALID:
    case XML_SCHEMAV_CVC_MINLENGTH_VALID:
        return value.trimmed().isEmpty()
            ? QStringLiteral("wartość jest pusta")
            : QStringLiteral("wartość %1 jest za krótka").arg(quoted(value));
    case XML_SCHEMAV_CVC_MAXLENGTH_VALID:
        return QStringLiteral("wartość %1 jest za długa").arg(quoted(value));
    case XML_SCHEMAV_CVC_MININCLUSIVE_VALID:
    case XML_SCHEMAV_CVC_MAXINCLUSIVE_VALID:
        return QStringLiteral("wartość %1 jest poza dopuszczalnym zakresem").arg(quoted(value));
    case XML_SCHEMAV_CVC_TOTALDIGITS_VALID:
    case XML_SCHEMAV_CVC_FRACTIONDIGITS_VALID:
        return QStringLiteral("wartość %1 ma za dużo cyfr").arg(quoted(value));
    case XML_SCHEMAV_CVC_DATATYPE_VALID_1_2_1:
        return QStringLiteral("wartość %1 nie jest poprawną wartością tego elementu")
            .arg(quoted(value));
    case XML_SCHEMAV_CVC_ELT_1:
        return QStringLiteral("schemat nie zna takiego elementu");
    case XML_SCHEMAV_CVC_COMPLEX_TYPE_4:
        return QStringLiteral("brakuje wymaganego atrybutu");
    default:
        return QStringLiteral("niezgodność ze schematem (%1)").arg(withoutNamespaces(message));
    }
}

// Whose element it is, where the same name stands for several parties.
QString owner(const xmlNode *node)
{
    for (const xmlNode *at = node->parent; at && at->type == XML_ELEMENT_NODE; at = at->parent) {
        const QByteArray name(reinterpret_cast<const char *>(at->name));
        if (name == "Podmiot1")
            return QStringLiteral(" sprzedawcy");
        if (name == "Podmiot2")
            return QStringLiteral(" nabywcy");
        if (name == "FaWiersz")
            return QStringLiteral(" pozycji faktury");
    }
    return QString();
}

QString describe(const xmlError &error)
{
    if (error.domain == XML_FROM_PARSER)
        return QStringLiteral("wiersz %1: dokument nie jest poprawnym XML-em").arg(error.line);
    const auto *node = static_cast<const xmlNode *>(error.node);
    if (!node || !node->name) {
        return QStringLiteral("wiersz %1: %2")
            .arg(error.line)
            .arg(withoutNamespaces(QString::fromUtf8(error.message).trimmed()));
    }
    QString value;
    if (xmlChar *content = xmlNodeGetContent(node)) {
        value = QString::fromUtf8(reinterpret_cast<const char *>(content)).trimmed();
        xmlFree(content);
    }
    return QStringLiteral("element „%1”%2 (wiersz %3): %4")
        .arg(QString::fromUtf8(reinterpret_cast<const char *>(node->name)), owner(node))
        .arg(error.line)
        .arg(reason(error, value));
}

void collect(void *context, xmlErrorPtr error)
{
    if (error && error->level != XML_ERR_WARNING)
        static_cast<QStringList *>(context)->append(describe(*error));
}

// Says nothing: the errors are collected by the structured handler.
void silent(void *, const char *, ...) {}

} // namespace

struct KsefSchema::Parsed
{
    xmlSchemaPtr schema = nullptr;
    ~Parsed()
    {
        if (schema)
            xmlSchemaFree(schema);
    }
};

KsefSchema::KsefSchema() : m_parsed(std::make_unique<Parsed>())
{
    registerResourceInput();
    const QByteArray address
        = QByteArray(Scheme) + resourceDirectory().mid(1).toUtf8() + "/schemat_FA3.xsd";
    QStringList errors;
    xmlSchemaParserCtxtPtr parser = xmlSchemaNewParserCtxt(address.constData());
    if (parser) {
        xmlSchemaSetParserStructuredErrors(parser, collect, &errors);
        m_parsed->schema = xmlSchemaParse(parser);
        xmlSchemaFreeParserCtxt(parser);
    }
    if (!m_parsed->schema) {
        throw KsefError(QStringLiteral("Nie można odczytać wbudowanego schematu FA(3): %1")
                            .arg(errors.value(0, QStringLiteral("brak pliku"))));
    }
}

KsefSchema::~KsefSchema() = default;

QString KsefSchema::resourceDirectory()
{
    return QStringLiteral(":/haulix/ksef");
}

QStringList KsefSchema::problems(const QByteArray &document) const
{
    QStringList found;
    // The document is parsed with the same handler, so that a document
    // that is not even well-formed says why; nothing is fetched from a network.
    xmlSetStructuredErrorFunc(&found, collect);
    xmlSetGenericErrorFunc(nullptr, silent);
    xmlDocPtr doc = xmlReadMemory(document.constData(), int(document.size()), "faktura.xml",
                                  nullptr, XML_PARSE_NONET);
    if (doc) {
        xmlSchemaValidCtxtPtr validation = xmlSchemaNewValidCtxt(m_parsed->schema);
        xmlSchemaSetValidStructuredErrors(validation, collect, &found);
        const int result = xmlSchemaValidateDoc(validation, doc);
        xmlSchemaFreeValidCtxt(validation);
        xmlFreeDoc(doc);
        if (result < 0 && found.isEmpty())
            found << QStringLiteral("sprawdzenie ze schematem nie powiodło się");
    } else if (found.isEmpty()) {
        found << QStringLiteral("dokument nie jest poprawnym XML-em");
    }
    xmlSetStructuredErrorFunc(nullptr, nullptr);
    xmlSetGenericErrorFunc(nullptr, nullptr);
    return found;
}

void KsefSchema::check(const QByteArray &document, const QString &what) const
{
    const QStringList found = problems(document);
    if (found.isEmpty())
        return;
    throw KsefError(QStringLiteral("%1 nie jest zgodna ze schematem FA(3): %2. Pliku nie "
                                   "zapisano.")
                        .arg(what, found.first()));
}
