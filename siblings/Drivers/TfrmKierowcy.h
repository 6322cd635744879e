#pragma once

#include "Drivers.h"
#include "TfrmRegister.h"

// The drivers' register, also their selection window.
class TfrmKierowcy : public TfrmRegister
{
    Q_OBJECT

public:
    TfrmKierowcy(QWidget *owner, Mode mode, int currentKey);

protected:
    TfrmKierowcy(QWidget *owner, Mode mode, int currentKey, Drivers::Staff staff);
    std::unique_ptr<TfrmRecordEditor> createEditor(int key) override;

private:
    Drivers::Staff m_staff;
};

// The mechanics: the drivers of the mechanics' pay group, on their own
// privileges and list settings.
class TfrmMechanicy : public TfrmKierowcy
{
    Q_OBJECT

public:
    TfrmMechanicy(QWidget *owner, Mode mode, int currentKey);
};
