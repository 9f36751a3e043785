#include "desktop/sheet/cell_painter.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include "desktop/sheet/open_cell_editor.h"
#include "desktop/sheet/swatch.h"

namespace nimbrel {
namespace {

constexpr int endMargin = 3;    // pixels after a text
constexpr int maxLength = 500;  // characters, more than any cell shows

constexpr QRgb groupCaption = 0xFF808080;
constexpr QRgb groupValue = 0xFFD0D0D0;
constexpr QRgb unusable = 0xFFEEEEEE;

bool isDark(const QPalette& palette) {
  constexpr int middle = 128;
  return palette.color(QPalette::Base).lightness() < middle;
}

/// The fixed grey, or in a dark palette the base colour lightened as much as the grey is darker than white.
QColor grey(const QPalette& palette, QRgb fixed) {
  if (!isDark(palette)) return QColor::fromRgb(fixed);
  const auto base = palette.color(QPalette::Base);
  const auto text = palette.color(QPalette::Text);
  const int share = 255 - qRed(fixed);
  const auto mixed = [share](int from, int to) { return from + (to - from) * share / 255; };
  return {mixed(base.red(), text.red()), mixed(base.green(), text.green()), mixed(base.blue(), text.blue())};
}

}  // namespace

struct CellPainter::Colours {
  QColor background;
  QColor text;
};

CellPainter::CellPainter(const SheetModel& model, QObject* parent)
    : QStyledItemDelegate(parent), model_(model) {}

QFont CellPainter::fontOf(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  auto font = option.font;
  const bool isHeading =
      index.column() == column::Caption && model_.sheet().row(index.row()).Kind() == KindGroup;
  font.setUnderline(isHeading);
  font.setBold(isHeading || model_.isChanged(index.row(), index.column()));
  return font;
}

QSize CellPainter::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const QFontMetrics metrics(fontOf(option, index));
  constexpr int air = 8;  // pixels above and below the text, together
  const int beside = OpenCellEditor::inset + endMargin + (isColour(index) ? metrics.height() + air : 0);
  return {metrics.horizontalAdvance(index.data().toString().left(maxLength)) + beside,
          metrics.height() + air};
}

CellPainter::Colours CellPainter::coloursOf(const QStyleOptionViewItem& option,
                                            const QModelIndex& index) const {
  const auto& palette = option.palette;
  const auto& sheet = model_.sheet();
  const auto& row = sheet.row(index.row());
  const Colours marked{palette.color(QPalette::Highlight), palette.color(QPalette::HighlightedText)};
  const auto text = palette.color(QPalette::Text);
  if (index.column() == column::Caption) {
    if (row.Kind() == KindGroup) return {QColor::fromRgb(groupCaption), Qt::white};
    if (sheet.Editing() && sheet.cursorRow() == index.row()) return marked;
    return {palette.color(QPalette::Window), palette.color(QPalette::WindowText)};
  }
  if (row.Kind() == KindGroup) return {grey(palette, groupValue), text};
  const bool isUsed = index.column() == column::Replicate ? row.OnlyColumn == 0 : row.takes(index.column());
  if (!isUsed) return {grey(palette, unusable), text};
  const bool isCurrent = (option.state & QStyle::State_HasFocus) != 0;
  if (isCurrent && !model_.isOpen(index.row(), index.column())) return marked;
  return {palette.color(QPalette::Base), text};
}

bool CellPainter::isColour(const QModelIndex& index) const {
  const auto& row = model_.sheet().row(index.row());
  return row.Kind() == KindColour && index.column() != column::Caption &&
         index.column() != column::Replicate && row.takes(index.column());
}

QRect CellPainter::textPlace(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const auto& cell = option.rect;
  const int start = OpenCellEditor::inset + (isColour(index) ? cell.height() : 0);
  return QStyle::visualRect(option.direction, cell, cell.adjusted(start, 0, -endMargin, 0));
}

void CellPainter::paint(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const {
  const auto colours = coloursOf(option, index);
  const auto& cell = option.rect;
  painter->save();
  painter->fillRect(cell, colours.background);
  if (isColour(index)) {
    const auto square =
        QStyle::visualRect(option.direction, cell, {cell.topLeft(), QSize(cell.height(), cell.height())});
    paintSwatch(*painter, square, model_.sheet().swatch(index.row(), index.column()),
                isDark(option.palette) ? option.palette.color(QPalette::Text) : Qt::black);
  }
  paintText(*painter, option, index, colours.text);
  painter->restore();
}

void CellPainter::paintText(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index,
                            const QColor& ink) const {
  const auto text = index.data().toString().left(maxLength).replace('\n', ' ');
  if (text.isEmpty()) return;
  const auto font = fontOf(option, index);
  if (font != painter.font()) painter.setFont(font);
  painter.setPen(ink);
  const auto place = textPlace(option, index);
  const auto start = QStyle::visualAlignment(option.direction, Qt::AlignLeft);
  painter.drawText(place, static_cast<int>(Qt::AlignVCenter | start) | Qt::TextSingleLine,
                   painter.fontMetrics().elidedText(text, Qt::ElideRight, place.width()));
}

bool CellPainter::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                            const QModelIndex& index) {
  if (event->type() != QEvent::ToolTip || !index.isValid()) return false;
  const auto text = index.data().toString().left(maxLength).trimmed();
  const bool isCut = option.fontMetrics.horizontalAdvance(text) > textPlace(option, index).width();
  // Item names may contain tags.
  QToolTip::showText(event->globalPos(), isCut ? "<p>" + text.toHtmlEscaped() + "</p>" : QString(), view);
  return true;
}

StateHeader::StateHeader(const PropertySheet& sheet, QWidget* parent)
    : QHeaderView(Qt::Horizontal, parent), sheet_(sheet) {
  setSectionResizeMode(Fixed);
  setSectionsClickable(false);
  setHighlightSections(false);
  setMinimumSectionSize(1);
}

/// QHeaderView would measure the text in a regular font, and cut off the bold one at both ends.
void StateHeader::initStyleOptionForIndex(QStyleOptionHeader* option, int logicalIndex) const {
  QHeaderView::initStyleOptionForIndex(option, logicalIndex);
  QFont bold = font();
  bold.setBold(true);
  const int room =
      sectionSize(logicalIndex) - 2 * style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, this);
  option->text = QFontMetrics(bold).elidedText(option->text, Qt::ElideRight, room);
}

void StateHeader::paintSection(QPainter* painter, const QRect& place, int logicalIndex) const {
  if (!sheet_.Editing() || sheet_.cursorColumn() != logicalIndex) {
    painter->save();
    QHeaderView::paintSection(painter, place, logicalIndex);
    painter->restore();
    return;
  }
  QFont bold = font();
  bold.setBold(true);
  painter->fillRect(place, palette().color(QPalette::Highlight));
  painter->setPen(palette().color(QPalette::HighlightedText));
  painter->setFont(bold);
  const auto state = model()->headerData(logicalIndex, Qt::Horizontal).toString();
  painter->drawText(place, Qt::AlignCenter | Qt::TextSingleLine,
                    QFontMetrics(bold).elidedText(state, Qt::ElideRight, place.width()));
}

}  // namespace nimbrel
