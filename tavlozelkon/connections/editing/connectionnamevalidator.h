#pragma once

#include "tavlozelkon_lib_export.h"

#include <QValidator>

/*
 * What may be typed as a connection name: on Lunvex anything, elsewhere letters, digits,
 * underscores, blanks, dots and hyphens, refused keystroke by keystroke. Letters are any
 * script's letters ("é", "ü", "ß"), as administrators outside the English-speaking world
 * name their connections in their own language.
 */
class TAVLOZELKON_LIB_EXPORT ConnectionNameValidator : public QValidator
{
    Q_OBJECT
    Q_DISABLE_COPY(ConnectionNameValidator)

public:
    explicit ConnectionNameValidator(QObject* parent = nullptr);
    ~ConnectionNameValidator() override;

    State validate(QString& input, int& pos) const override;

    // The character rule alone, whatever the platform; the connection editor checks saved
    // names with it too.
    static bool hasAllowedCharacters(const QString& name);
};
