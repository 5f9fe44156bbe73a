// Lays the invoice out in A4 pages of 1123 px without cutting a table row or a block in two,
// and answers the number of pages. Runs once the document has loaded.
(function () {
    var PAGE = 1123;

    // Let the page flow instead of being clipped to one sheet.
    var style = document.createElement('style');
    style.textContent =
        'html,body{height:auto!important;min-height:0!important;overflow:visible!important}' +
        'body{display:block!important}' +
        'main{display:block!important;overflow:visible!important;height:auto!important}' +
        '.wordmark-row{display:none!important}' +
        '*{-webkit-print-color-adjust:exact!important;print-color-adjust:exact!important}';
    (document.head || document.documentElement).appendChild(style);

    // Document order; each block measures its place after the pushes before it.
    var blocks = document.querySelectorAll('table tbody tr, .hero, .parties, .bottom-grid, .totals, .terms, footer');
    for (var i = 0; i < blocks.length; i++) {
        var block = blocks[i];
        var rect = block.getBoundingClientRect();
        var h = rect.height;
        // A block taller than a page is cut wherever it falls; moving it would only waste paper.
        if (!(h > 0 && h <= PAGE)) {
            continue;
        }
        var top = rect.top + window.scrollY;
        var sp = Math.floor(top / PAGE);
        var ep = Math.floor((top + h - 1) / PAGE);
        if (ep <= sp) {
            continue;
        }
        var push = ep * PAGE - top + 6;
        if (block.tagName === 'TR') {
            var spacer = document.createElement('tr');
            spacer.className = 'mv-page-spacer';
            spacer.style.cssText = 'height:' + push + 'px;padding:0;border:0;background:none';
            var cell = document.createElement('td');
            cell.colSpan = block.cells.length || 3;
            cell.style.cssText = 'height:' + push + 'px;padding:0;border:0;background:none';
            spacer.appendChild(cell);
            block.parentNode.insertBefore(spacer, block);
        } else {
            var margin = parseFloat(window.getComputedStyle(block).marginTop) || 0;
            block.style.marginTop = (margin + push) + 'px';
        }
    }

    var H = Math.max(document.documentElement.scrollHeight, document.body.scrollHeight);
    var pages = Math.max(1, Math.ceil(H / PAGE));
    // Important, or the flowing rule above would win over it.
    document.body.style.setProperty('min-height', (pages * PAGE) + 'px', 'important');
    return pages;
})();
