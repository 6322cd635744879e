#pragma once

#include "TableObject.h"

// Table DOKUMENTY: document kinds: name, kinds of action, default flag, numbering mask.
class TDokumentyObj : public TableObject<TDokumentyObj>
{
public:
    static constexpr TableShape Shape = TableShape::Short;
    static constexpr bool HasSelectById = true;
    static constexpr bool HasSelectOne = false;
    static constexpr MaxIdKind MaxId = MaxIdKind::None;
    static const TableDescription<TDokumentyObj> &description();

    explicit TDokumentyObj(Connection &connection) : TableObject(connection) {}

    int ID_DOKUMENTU = 0;
    QString NAZWA;
    int RODZAJE_AKCJI = 0;
    int DOMYSLNY = 0;
    int ID_MASKI = 0;
};
