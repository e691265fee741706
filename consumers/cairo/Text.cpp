// Texts, by Pango.
#include <pango/pangocairo.h>

#include "Drawing.h"

namespace vekprt::cairo {

namespace {

template <class Class>
using Object = std::unique_ptr<Class, Releaser<g_object_unref>>;

// Fonts are laid out at this size and scaled: Pango counts in 1024ths of a unit.
constexpr double layoutSize = 100.0;

Object<PangoLayout> NewLayout(const Lettering& iLettering) {
    const Object<PangoContext> context(pango_font_map_create_context(pango_cairo_font_map_get_default()));
    cairo_font_options_t* const options = cairo_font_options_create();
    cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_NONE);
    cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
    pango_cairo_context_set_font_options(context.get(), options);
    cairo_font_options_destroy(options);
    pango_context_set_round_glyph_positions(context.get(), FALSE);
    pango_context_set_base_dir(context.get(), PANGO_DIRECTION_LTR);

    Object<PangoLayout> layout(pango_layout_new(context.get()));
    PangoFontDescription* const font = pango_font_description_new();
    pango_font_description_set_family(font, iLettering.family.c_str());
    pango_font_description_set_weight(font, static_cast<PangoWeight>(iLettering.weight));
    pango_font_description_set_absolute_size(font, layoutSize * PANGO_SCALE);
    pango_layout_set_font_description(layout.get(), font);
    pango_font_description_free(font);
    pango_layout_set_auto_dir(layout.get(), FALSE);
    pango_layout_set_single_paragraph_mode(layout.get(), TRUE);
    // Set in any case: without it, Pango makes ligatures of letters that stand close.
    const double spacing = iLettering.isVertical ? 0.0 : iLettering.spacing / iLettering.height * layoutSize;
    PangoAttrList* const attributes = pango_attr_list_new();
    pango_attr_list_insert(attributes, pango_attr_letter_spacing_new(pango_units_from_double(spacing)));
    pango_layout_set_attributes(layout.get(), attributes);
    pango_attr_list_unref(attributes);
    return layout;
}

} // namespace

void Drawing::PaintText(const VEKPrtTextElt& iText, const Lettering& iLettering, const Look& iLook,
                        bool iIsImageFill) {
    const Object<PangoLayout> layout = NewLayout(iLettering);
    const double scale = iLettering.height / layoutSize;
    const auto eachLine = [&](void (*iUse)(cairo_t*, PangoLayoutLine*)) {
        cairo_save(_cairo);
        cairo_scale(_cairo, scale, scale);
        double y = iLettering.firstLine / scale;
        for (const std::string& text : iLettering.lines) {
            pango_layout_set_text(layout.get(), text.data(), static_cast<int>(text.size()));
            PangoLayoutLine* const line = pango_layout_get_line_readonly(layout.get(), 0);
            PangoRectangle logical = {};
            pango_layout_line_get_extents(line, nullptr, &logical);
            cairo_move_to(_cairo, -iLettering.left * pango_units_to_double(logical.width), y);
            iUse(_cairo, line);
            y += iLettering.lineFeed / scale;
        }
        cairo_restore(_cairo);
    };
    const bool isFilled = iLook.fill.kind != Fill::None;
    if (isFilled && _keepsText && !iIsImageFill) {
        eachLine(pango_cairo_show_layout_line);
    } else if (isFilled) {
        eachLine(pango_cairo_layout_line_path);
        PaintInside(iLook.fill, iIsImageFill);
    }
    cairo_new_path(_cairo);
    if (!iLook.stroke.isDrawn) return;
    eachLine(pango_cairo_layout_line_path);
    PaintStroke(iText, iLook.stroke);
    cairo_new_path(_cairo);
}

} // namespace vekprt::cairo
