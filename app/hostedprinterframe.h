#pragma once

#include "printers/networkprinterframe.h"

class ConfigPage;

/*
 * The network printer frame as this application hosts it: the last item of the
 * Peripherals page.
 *
 * The application saves into a fresh copy of the loaded document, whose printer section
 * still holds the printers this frame was filled from. The frame appends every printer
 * it holds and never replaces one, so when it is about to write, the old records go
 * first; otherwise each save would repeat every loaded printer.
 */
class HostedPrinterFrame : public NetworkPrinterFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(HostedPrinterFrame)

public:
    explicit HostedPrinterFrame(QWidget* parent = nullptr);
    ~HostedPrinterFrame() override;

    // Appends a new frame to page's accordion, its changes reported as the page's.
    static HostedPrinterFrame* addTo(ConfigPage* page);

    void saveConfig(ConfigFile* config) override;
};
