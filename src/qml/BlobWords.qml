import QtQml

/// Puts the advice of the view model into words.
QtObject {
    // The order of BlobFilter.
    enum Filter { MinArea, MaxArea, Circularity, Inertia, MinThreshold, MaxThreshold }

    readonly property var _faults: [
        qsTr("Das Bild ist zu dunkel."),
        qsTr("Das Bild ist zu hell."),
        qsTr("Das Bild hat keinen Kontrast."),
        qsTr("Das Bild ist unscharf."),
        qsTr("Kein dunkler, geschlossener Fleck im Bild.")
    ]

    /// Whole number, its thousands apart by a narrow blank.
    function number(value: real): string {
        return Math.round(value).toString().replace(/\B(?=(\d{3})+$)/g, "\u202f");
    }

    function area(value: real): string {
        return qsTr("%1 px²").arg(number(value));
    }

    // Downwards: what misses its limit by little must not read as if it met it.
    function _percent(value: real): string {
        return Math.floor(100 * value + 1e-6).toString();
    }

    /// A filter that rejects, and by how much.
    function shortfall(missing: var): string {
        switch (missing.filter) {
        case BlobWords.Filter.MinArea:
            return qsTr("zu klein: %1 (mindestens %2)").arg(area(missing.value))
                                                       .arg(number(missing.limit));
        case BlobWords.Filter.MaxArea:
            return qsTr("zu groß: %1 (höchstens %2)").arg(area(missing.value))
                                                     .arg(number(missing.limit));
        case BlobWords.Filter.Circularity:
            return qsTr("Rundheit %1 % (mindestens %2 %)").arg(_percent(missing.value))
                                                          .arg(_percent(missing.limit));
        case BlobWords.Filter.Inertia:
            return qsTr("Symmetrie %1 % (mindestens %2 %)").arg(_percent(missing.value))
                                                           .arg(_percent(missing.limit));
        case BlobWords.Filter.MinThreshold:
            return qsTr("zu dunkel: Helligkeit %1 (mindestens %2)").arg(number(missing.value))
                                                                   .arg(number(missing.limit));
        default:
            return qsTr("zu hell: Helligkeit %1 (höchstens %2)").arg(number(missing.value))
                                                                .arg(number(missing.limit));
        }
    }

    /// What a candidate lacks; of a blob that lacks nothing its size.
    function tag(candidate: var, found: bool): string {
        if (found)
            return area(candidate.area);
        if (candidate.shortfalls.length === 0)
            return qsTr("zu schwacher Kontrast: %1 Stufen").arg(number(candidate.darkness));
        return candidate.shortfalls.map(missing => shortfall(missing)).join(", ");
    }

    function _blobs(advice: var): string {
        const count = qsTr("%1 Blobs: %2").arg(number(advice.blobs));
        const sizes = advice.tags.map(blob => blob.area).sort((a, b) => a - b).map(area);
        if (sizes.length > 4 || sizes.length < advice.blobs)
            return count.arg(qsTr("%1 bis %2").arg(area(advice.smallestArea))
                                              .arg(area(advice.largestArea)));
        return count.arg(qsTr("%1 und %2").arg(sizes.slice(0, -1).join(", "))
                                          .arg(sizes[sizes.length - 1]));
    }

    function _flicker(advice: var): string {
        const missing = advice.tags[0].shortfalls[0];
        const low = advice.flickerLow;
        const high = advice.flickerHigh;
        switch (missing.filter) {
        case BlobWords.Filter.MinArea:
        case BlobWords.Filter.MaxArea:
            return qsTr("Blob flackert: Fläche %1–%2").arg(number(low)).arg(area(high));
        case BlobWords.Filter.Circularity:
            return qsTr("Blob flackert: Rundheit %1–%2 %").arg(_percent(low)).arg(_percent(high));
        case BlobWords.Filter.Inertia:
            return qsTr("Blob flackert: Symmetrie %1–%2 %").arg(_percent(low)).arg(_percent(high));
        default:
            return qsTr("Blob flackert: Helligkeit %1–%2").arg(number(low)).arg(number(high));
        }
    }

    function _said(advice: var): string {
        switch (advice.kind) {
        case "candidate":
            return qsTr("Nächster Kandidat: %1").arg(tag(advice.tags[0], false));
        case "several":
            return _blobs(advice);
        case "flicker":
            return _flicker(advice);
        case "fault":
            return _faults[advice.fault];
        default:
            return "";
        }
    }

    /// The whole line; empty where there is nothing to say.
    function line(advice: var): string {
        const said = _said(advice);
        if (!advice.inTheWay)
            return said;
        return qsTr("%1. Keine Einstellung trennt ihn von dem Fleck mit %2.")
               .arg(said).arg(area(advice.inTheWay.area));
    }

    function _change(change: var): string {
        const percent = change.filter === BlobWords.Filter.Circularity
                      || change.filter === BlobWords.Filter.Inertia;
        // As the sliders are called.
        const name = [qsTr("Min Area"), qsTr("Max Area"), qsTr("Min Circularity"),
                      qsTr("Min Inertia"), qsTr("Min Threshold"),
                      qsTr("Max Threshold")][change.filter];
        const shown = value => percent ? _percent(value) : number(value);
        return `${name} ${shown(change.value)} → ${shown(change.limit)}`;
    }

    /// The sliders that the proposed values move.
    function changes(advice: var): string {
        return (advice.changes ?? []).map(change => _change(change)).join(", ");
    }
}
