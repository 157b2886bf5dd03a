// SPDX-License-Identifier: MIT
// How the widgets look before any style sheet of the application says otherwise.

const sheet = new CSSStyleSheet();
sheet.replaceSync(`
[hidden]{display:none!important}
html.Wt-unstyled body{visibility:hidden}
table{border-collapse:collapse;border:0;border-spacing:0}
div,td,th,img{margin:0;padding:0;border:0}
td,th{vertical-align:top;text-align:left}
.Wt-cell:has(>[hidden]:only-child){display:none}
[data-li~=g]{min-width:0;min-height:0}
[data-li~=w]{width:auto!important}
[data-li~=h]{height:auto!important}
.Wt-hrh2,.Wt-vrh2{position:relative;z-index:1;touch-action:none}
.Wt-hrh2{flex:0 0 6px;height:6px;align-self:end;transform:translateY(100%);cursor:row-resize}
.Wt-vrh2{flex:0 0 6px;width:6px;justify-self:end;transform:translateX(100%);cursor:col-resize}
.Wt-tableview{display:flex;flex-direction:column;min-height:0;position:relative;overflow:hidden}
.Wt-header{flex:none;overflow:hidden}
.Wt-headerdiv,.Wt-tv-row{display:grid;grid-template-columns:var(--wt-columns);width:max-content;min-width:100%;box-sizing:border-box}
.Wt-header .Wt-tv-c{position:relative}
.Wt-tv-rh{position:absolute;top:0;bottom:0;right:0;width:7px;cursor:col-resize;touch-action:none}
@media (pointer:coarse){.Wt-tv-rh{width:24px}:is(.Wt-hrh2,.Wt-vrh2)::before{content:"";position:absolute;inset:-9px}}
.Wt-tv-body{flex:1 1 0;min-height:0;overflow:auto;position:relative}
.Wt-tv-contents{position:relative;min-width:100%}
.Wt-tv-row{position:absolute;left:0;height:var(--wt-row)}
.Wt-tv-c{overflow:hidden;text-overflow:ellipsis;white-space:nowrap}
.Wt-right{text-align:right}.Wt-center{text-align:center}
.Wt-align-center>:is(div,table,ul){margin-left:auto;margin-right:auto}
.Wt-align-right>:is(div,table,ul){margin-left:auto}
@layer wt{
.Wt-loading{position:fixed;inset:0 0 auto;height:3px;z-index:1000;background:Highlight;opacity:0;animation:wt-loading .8s .3s infinite alternate}
.Wt-offline{position:fixed;inset:0;z-index:1001;display:grid;place-items:center;background:#000a;color:#fff;font:18px sans-serif}
.Wt-tooltip{position:fixed;pointer-events:none;z-index:1002;margin:0;max-width:360px;padding:4px 8px;border:1px solid;background:Canvas;color:CanvasText}
}
@keyframes wt-loading{from{opacity:.3}to{opacity:1}}
`);
document.adoptedStyleSheets = [sheet];

// In a layer, so that any style sheet of the application has the last word.
const formSheet = new CSSStyleSheet();
formSheet.replaceSync(`@layer wt{
.Wt-cell-middle{vertical-align:middle}.Wt-cell-bottom{vertical-align:bottom}.Wt-cell-baseline{vertical-align:baseline}
.Wt-tabwidget{display:flex;flex-direction:column;min-width:0;min-height:0}
.Wt-tabwidget>.Wt-stack{flex:1 1 auto;min-height:0}
.Wt-tabs{display:flex;flex-wrap:wrap;margin:0;padding:0;list-style:none}
.Wt-tabs a{display:block;padding:4px 12px;cursor:pointer}
.Wt-tabs>.itemselected>a{font-weight:600;text-decoration:underline}
.Wt-progressbar{display:inline-block;position:relative;width:150px;height:20px;border:1px solid;overflow:hidden}
.Wt-pgb-bar{height:100%;background:#9cf}
.Wt-pgb-label{position:absolute;inset:0;text-align:center}
.Wt-dialogcover{position:fixed;inset:0;z-index:100;background:#0006}
.Wt-dialogcover:has(~.Wt-dialogcover){background:none}
.Wt-dialog{position:fixed;z-index:100;inset:0;width:fit-content;height:fit-content;margin:auto;max-width:calc(100vw - 16px);max-height:calc(100vh - 16px);border:1px solid;background:Canvas;color:CanvasText;overflow:auto}
.Wt-dialog:focus{outline:none}
.Wt-tableview:focus-visible .Wt-current{outline:1px dotted;outline-offset:-1px}
.Wt-dialog-grip{position:absolute;left:0;top:0;width:16px;height:16px;line-height:16px;text-align:center;touch-action:none;cursor:move}
.Wt-dialog-grip:not(.Wt-resize,:focus-visible){opacity:0;pointer-events:none}
.Wt-dialog-grip::before{content:"✥"}
.Wt-resize{left:auto;top:auto;right:0;bottom:0;cursor:nwse-resize}
.Wt-resize::before{content:"◢"}
.dialog-layout{display:flex;flex-direction:column;height:100%;max-height:inherit}
.dialog-layout>.body{flex:1 1 auto;min-height:0;overflow:auto}
.titlebar h4{margin:0}
.movable>.titlebar{cursor:move;touch-action:none}
.closeicon{float:right;cursor:pointer}
.closeicon::before{content:"×"}
input.Wt-invalid,textarea.Wt-invalid,select.Wt-invalid{outline:2px solid #b00020}
.Wt-progressbar[hidden]{display:none}
}`);
document.adoptedStyleSheets.push(formSheet);
