#pragma once

#include "EditorFields.h"

#include <QVariant>

#include <vector>

// One record being added or corrected in an editor of the siblings,
// without widgets: the editor form shows its fields, hands the typed
// values back, and saves only what check() lets through.
class RecordEditing
{
public:
    virtual ~RecordEditing() = default;

    virtual const std::vector<FieldGroup> &groups() const = 0;
    virtual const std::vector<EditorField> &fields() const = 0;

    // Key 0 starts a new record with its defaults. False when the record is
    // not there (any more).
    virtual bool load(int key) = 0;
    virtual int key() const = 0;

    // Text: QString; Integer, Choice, Flag: int; Decimal: double;
    // Date: DateTime.
    virtual QVariant value(int field) const = 0;
    virtual void setValue(int field, const QVariant &value) = 0;

    // The first field that cannot be saved as it is.
    virtual Problem check() const = 0;
    // Inserts or updates; the record's key, 0 after a failure that has been
    // shown already.
    virtual int save() = 0;

    int indexOf(const QString &name) const
    {
        const std::vector<EditorField> &all = fields();
        for (std::size_t i = 0; i < all.size(); ++i) {
            if (all[i].name == name)
                return int(i);
        }
        return -1;
    }
};
