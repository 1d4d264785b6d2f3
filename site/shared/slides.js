// Walks the presentation slide by slide: with the two buttons, the arrow keys, Home and End, and
// the page keys that remote controls send. Without this script all slides stand on the page.
"use strict";

const slides = [...document.querySelectorAll(".slide")];
const controls = document.querySelector(".controls");
const [back, next] = controls.querySelectorAll("button");
const [place, title] = controls.querySelectorAll("output span");
let current = 0;

function showPlace() {
  place.textContent = `${current + 1} of ${slides.length}`;
  title.textContent = `: ${slides[current].querySelector("h1, h2").textContent}`;
  back.setAttribute("aria-disabled", String(current === 0));
  next.setAttribute("aria-disabled", String(current === slides.length - 1));
}

function goTo(index) {
  if (index < 0 || index >= slides.length) return;
  current = index;
  // The head of the page belongs to the first slide.
  if (index === 0) window.scrollTo(0, 0);
  else slides[index].scrollIntoView();
  showPlace();
}

// The slide that reaches over the middle of the window, however it came there.
function look() {
  const middle = window.innerHeight / 2;
  const above = slides.filter((slide) => slide.getBoundingClientRect().top <= middle);
  current = Math.max(0, above.length - 1);
  showPlace();
}

// A slide higher than the window is read by paging through it.
function fits() {
  return slides[current].offsetHeight <= window.innerHeight + 1;
}

function targetOf(key) {
  switch (key) {
    case "ArrowRight":
      return current + 1;
    case "ArrowLeft":
      return current - 1;
    case "PageDown":
      return fits() ? current + 1 : null;
    case "PageUp":
      return fits() ? current - 1 : null;
    case "Home":
      return 0;
    case "End":
      return slides.length - 1;
    default:
      return null;
  }
}

document.addEventListener("keydown", (event) => {
  if (event.altKey || event.ctrlKey || event.metaKey || event.shiftKey) return;
  const target = targetOf(event.key);
  if (target === null) return;
  event.preventDefault();
  goTo(target);
});
back.addEventListener("click", () => goTo(current - 1));
next.addEventListener("click", () => goTo(current + 1));
window.addEventListener("scroll", look, { passive: true });
window.addEventListener("resize", look);
controls.hidden = false;
document.body.classList.add("paged");
look();
