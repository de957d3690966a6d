#include "validationnotice.h"

namespace {
ValidationNotice::Handler handler = nullptr;
}

void ValidationNotice::setHandler(Handler newHandler)
{
    handler = newHandler;
}

void ValidationNotice::tell(const QString& title, const QString& text)
{
    if (handler)
        handler(title, text);
}
