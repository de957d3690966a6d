#pragma once

#include <QWidget>

class ConfigAtom;
class QCheckBox;
class QLabel;
class QLineEdit;

/*
 * The proxy fields of the ICA and web browser pages: a check box that enables them, the
 * address and the port (0 to 65536 as typed). The values stay in the fields and are stored
 * whether the box is checked or not; the page decides which atom they belong to.
 */
class ProxyFields : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY(ProxyFields)

public:
    explicit ProxyFields(QWidget* parent = nullptr);
    ~ProxyFields() override;

    QCheckBox* enableBox() const { return m_enable; }
    void setFieldsEnabled(bool enabled);
    void retranslateUi(const QString& enableText);

    void clear();
    // A null atom shows empty fields.
    void load(const ConfigAtom* atom);
    // Writes "enable", "address" and "port", in this order.
    void save(ConfigAtom& atom) const;

private:
    QCheckBox* m_enable;
    QLabel* m_addressLabel;
    QLineEdit* m_address;
    QLabel* m_portLabel;
    QLineEdit* m_port;
};
