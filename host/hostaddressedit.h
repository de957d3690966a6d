#pragma once

#include "tavlohost_export.h"

#include <QLineEdit>

/*
 * A line edit for a server: its validator accepts a host name (RFC 1123 labels,
 * dot separated), an IPv4 address or an IPv6 address.
 */
class TAVLOHOST_EXPORT HostAddressEdit : public QLineEdit
{
    Q_OBJECT
    Q_DISABLE_COPY(HostAddressEdit)

public:
    explicit HostAddressEdit(QWidget* parent = nullptr);
    ~HostAddressEdit() override;
};
