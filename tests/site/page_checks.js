// What the tests ask of a page; loaded into each.
"use strict";

function channels(colour) {
  const numbers = colour.match(/[\d.]+/g).map(Number);
  return numbers.length === 3 ? [...numbers, 1] : numbers;
}

function luminance(colour) {
  const [red, green, blue] = colour.slice(0, 3).map((channel) => {
    const part = channel / 255;
    return part <= 0.04045 ? part / 12.92 : ((part + 0.055) / 1.055) ** 2.4;
  });
  return 0.2126 * red + 0.7152 * green + 0.0722 * blue;
}

function contrast(one, other) {
  const [dark, light] = [luminance(one), luminance(other)].sort((a, b) => a - b);
  return (light + 0.05) / (dark + 0.05);
}

function groundOf(element) {
  for (let at = element; at; at = at.parentElement) {
    const ground = channels(getComputedStyle(at).backgroundColor);
    if (ground[3] === 1) return ground;
  }
  return [255, 255, 255, 1];
}

// All texts with their contrast, each as [text, ratio].
function textContrasts() {
  const found = [];
  const walker = document.createTreeWalker(document.body, NodeFilter.SHOW_TEXT);
  while (walker.nextNode()) {
    const text = walker.currentNode.data.trim();
    const element = walker.currentNode.parentElement;
    if (!text || element.tagName === "SCRIPT") continue;
    found.push([text, contrast(channels(getComputedStyle(element).color), groundOf(element))]);
  }
  return found;
}

function headingLevels() {
  return [...document.querySelectorAll("h1, h2, h3, h4, h5, h6")].map((h) => Number(h.tagName[1]));
}

// Each as [whether it has an alternative text, that text, whether it stands for something, loaded].
function images() {
  return [...document.images].map((image) => [
    image.hasAttribute("alt"), image.alt, image.closest("a, figure, button") !== null,
    image.complete && image.naturalWidth > 0,
  ]);
}

function linkAddresses() {
  return [...document.links].map((link) => link.href);
}

// What the keyboard can reach, in the order of the page.
function reachable() {
  return [...document.querySelectorAll("a[href], button")]
    .filter((element) => element.checkVisibility()).map(nameOf);
}

function nameOf(element) {
  return element.getAttribute("href") ?? element.textContent;
}

// What has the keyboard: its name, and whether a mark on the page says so.
function focused() {
  const element = document.activeElement;
  const style = getComputedStyle(element);
  const box = element.getBoundingClientRect();
  return [nameOf(element),
    style.outlineStyle !== "none" && parseFloat(style.outlineWidth) >= 2 && box.right > 0];
}
