#include "platform/qt/print_painter.h"

#include "platform/qt/qt_text.h"

#include <QBuffer>
#include <QFile>
#include <QFontMetricsF>
#include <QPaintEngine>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgRenderer>

#include <algorithm>
#include <cmath>
#include <utility>

namespace platform {

namespace {

constexpr double kMmPerInch = 25.4;
constexpr double kDefaultTabMm = 12;
constexpr double kCutBandMm = 6;
constexpr double kRollGapMm = 10;
constexpr double kRollMarginMm = 4;
constexpr double kPageMarginMm = 12.7;
constexpr double kDefaultPageHeightMm = 279;
constexpr int kPdfResolution = 600;

} // namespace

Banner::Banner(const QString &path) : drawing(std::make_unique<QSvgRenderer>(path))
{
    tenths = drawing->viewBoxF().size();
    constexpr double kDotsPerTenth = kPdfResolution / kMmPerInch / 10;
    dots = QImage((tenths * kDotsPerTenth).toSize(), QImage::Format_Mono);
    dots.setColorTable({qRgb(0, 0, 0), qRgb(255, 255, 255)});
    dots.fill(1);
    QPainter onto(&dots);
    drawing->render(&onto);
}

Banner::~Banner() = default;

const Banner *Banners::find(const std::string &name)
{
    const auto [place, isNew] = read.try_emplace(name);
    if (isNew) {
        const QString path = QStringLiteral(":/banners/%1.svg").arg(toQt(name));
        if (QFile::exists(path))
            place->second = std::make_unique<Banner>(path);
    }
    return place->second.get();
}

PrintPainter::PrintPainter(QPaintDevice &theDevice, Banners &theBanners, double theWidth,
                           double thePageHeight, CutStyle theCutStyle)
    : device(theDevice), banners(theBanners), width(theWidth), pageHeight(thePageHeight),
      cutStyle(theCutStyle)
{
}

double PrintPainter::measure(const PrintJob &job)
{
    painter = nullptr;
    const double page = std::exchange(pageHeight, 0);
    walk(job);
    pageHeight = page;
    return std::max(y, pictureBottom);
}

void PrintPainter::paint(const PrintJob &job, QPainter &onto, const std::function<void()> &newPage)
{
    painter = &onto;
    turnPage = newPage;
    walk(job);
    painter = nullptr;
}

void PrintPainter::walk(const PrintJob &job)
{
    restart();
    setFont({});
    tabs.clear();
    for (const PrintOperation &operation : job.operations) {
        switch (operation.kind) {
        case PrintOperation::Kind::Font: setFont(operation.font); break;
        case PrintOperation::Kind::Line: line(toQt(operation.text)); break;
        case PrintOperation::Kind::Tabs: setTabs(operation.text); break;
        case PrintOperation::Kind::Picture: picture(operation.text); break;
        case PrintOperation::Kind::Cut: cut(); break;
        case PrintOperation::Kind::NewPage: breakPage(); break;
        }
    }
}

void PrintPainter::restart()
{
    y = 0;
    pictureBottom = 0;
}

void PrintPainter::setFont(const PrintFont &wanted)
{
    font = wanted.family.empty() ? QFont() : QFont(toQt(wanted.family));
    font.setPointSizeF(std::max(wanted.size, 1.0));
    font.setBold(wanted.bold);
    font.setItalic(wanted.italic);
    font.setHintingPreference(QFont::PreferNoHinting);
}

void PrintPainter::setTabs(const std::string &text)
{
    tabs.clear();
    for (const QString &stop : toQt(text).split(u',', Qt::SkipEmptyParts))
        tabs.push_back(dots(stop.trimmed().toDouble()));
}

void PrintPainter::line(const QString &text)
{
    const QFontMetricsF metrics(font, &device);
    const double height = metrics.lineSpacing();
    const bool blank = text.trimmed().isEmpty();
    if (!blank)
        y = std::max(y, pictureBottom);
    makeRoom(height);
    if (!blank && painter != nullptr)
        paintLine(text, y + metrics.ascent());
    y += height;
}

void PrintPainter::paintLine(const QString &text, double baseline)
{
    double natural = 0;
    const std::vector<Piece> pieces = layOut(text, natural);
    painter->save();
    painter->setFont(font);
    painter->translate(0, baseline);
    if (natural > width)
        painter->scale(width / natural, 1);
    for (const Piece &piece : pieces)
        painter->drawText(QPointF(piece.x, 0), piece.text);
    painter->restore();
}

std::vector<PrintPainter::Piece> PrintPainter::layOut(const QString &text, double &natural) const
{
    const QFontMetricsF metrics(font, &device);
    std::vector<Piece> pieces;
    natural = 0;
    for (const QString &part : text.split(u'\t')) {
        const double x = pieces.empty() ? 0 : nextTab(natural);
        natural = x + metrics.horizontalAdvance(part);
        pieces.push_back({x, part});
    }
    return pieces;
}

double PrintPainter::nextTab(double x) const
{
    for (const double stop : tabs) {
        if (stop > x)
            return stop;
    }
    if (!tabs.empty())
        return x + QFontMetricsF(font, &device).horizontalAdvance(u' ');
    const double step = dots(kDefaultTabMm);
    return (std::floor(x / step) + 1) * step;
}

void PrintPainter::picture(const std::string &name)
{
    const Banner *banner = banners.find(name);
    if (banner == nullptr) {
        line(toQt(bannerText(name)));
        return;
    }
    QSizeF size(dots(banner->tenths.width() / 10), dots(banner->tenths.height() / 10));
    if (size.width() > width)
        size *= width / size.width();
    y = std::max(y, pictureBottom);
    makeRoom(size.height());
    if (painter != nullptr)
        paintBanner(*banner, QRectF(QPointF((width - size.width()) / 2, y), size));
    pictureBottom = y + size.height();
}

void PrintPainter::paintBanner(const Banner &banner, const QRectF &place)
{
    if (painter->paintEngine()->type() == QPaintEngine::Pdf)
        painter->drawImage(place, banner.dots);
    else
        banner.drawing->render(painter, place);
}

void PrintPainter::cut()
{
    if (cutStyle == CutStyle::DriverFont) {
        const QFont before = font;
        setFont({"control", 10, false, false});
        line(QStringLiteral("P"));
        font = before;
        return;
    }
    const double band = dots(kCutBandMm);
    y = std::max(y, pictureBottom);
    makeRoom(band);
    if (painter != nullptr) {
        QFont small;
        small.setPointSizeF(7);
        const QString caption = QStringLiteral("cut");
        const QFontMetricsF metrics(small, &device);
        const double gap = metrics.horizontalAdvance(caption) + dots(3);
        const double middle = y + band / 2;
        painter->save();
        painter->setPen(QPen(Qt::black, dots(0.2), Qt::DashLine));
        painter->drawLine(QPointF(0, middle), QPointF((width - gap) / 2, middle));
        painter->drawLine(QPointF((width + gap) / 2, middle), QPointF(width, middle));
        painter->setFont(small);
        painter->drawText(QPointF((width - gap) / 2 + dots(1.5), middle + metrics.xHeight() / 2),
                          caption);
        painter->restore();
    }
    y += band;
}

void PrintPainter::breakPage()
{
    if (pageHeight <= 0) {
        y = std::max(y, pictureBottom) + dots(kRollGapMm);
        return;
    }
    if (painter != nullptr)
        turnPage();
    restart();
}

void PrintPainter::makeRoom(double height)
{
    if (pageHeight > 0 && y > 0 && y + height > pageHeight)
        breakPage();
}

double PrintPainter::dots(double millimetres) const
{
    return millimetres / kMmPerInch * device.logicalDpiX();
}

double printableRollWidth(double widthMm)
{
    return widthMm <= 60 ? widthMm - 10 : widthMm - 8;
}

QByteArray paintPdf(const PrintJob &job, Banners &banners, double widthMm, double heightMm)
{
    const bool roll = widthMm <= kWidestRoll;
    QBuffer pdf;
    pdf.open(QIODevice::WriteOnly);
    QPdfWriter writer(&pdf);
    writer.setResolution(kPdfResolution);
    writer.setTitle(toQt(job.title));

    double marginX = kPageMarginMm;
    double marginY = kPageMarginMm;
    double pageHeight = heightMm > 0 ? heightMm : kDefaultPageHeightMm;
    if (roll) {
        marginX = (widthMm - printableRollWidth(widthMm)) / 2;
        marginY = kRollMarginMm;
        const double printable = printableRollWidth(widthMm) / kMmPerInch * kPdfResolution;
        PrintPainter ruler(writer, banners, printable, 0, CutStyle::Mark);
        pageHeight = ruler.measure(job) / kPdfResolution * kMmPerInch + 2 * marginY;
    }
    QSizeF paper(widthMm, pageHeight);
    if (job.landscape && !roll)
        paper.transpose();
    writer.setPageSize(QPageSize(paper, QPageSize::Millimeter, {}, QPageSize::ExactMatch));
    writer.setPageMargins(QMarginsF(marginX, marginY, marginX, marginY), QPageLayout::Millimeter);

    QPainter onto(&writer);
    PrintPainter painter(writer, banners, writer.width(), roll ? 0 : writer.height(),
                         CutStyle::Mark);
    painter.paint(job, onto, [&writer] { writer.newPage(); });
    onto.end();
    return pdf.data();
}

} // namespace platform
