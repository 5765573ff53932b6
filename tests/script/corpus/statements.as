// versions: 5-8
// Loops and jumps.
for (var i = 0; i < 3; i++) trace(i); //= 0
                                      //= 1
                                      //= 2
i = 0;
while (i < 5) {
  i++;
  if (i == 2) continue;
  if (i == 4) break;
  trace("w" + i);  //= w1
}                  //= w3
do { trace("d" + i); i--; } while (i > 2); //= d4
                   //= d3
do { i++; if (i < 5) continue; trace("c" + i); } while (i < 5); //= c5
for (;;) { i++; if (i > 7) break; }
trace(i);          //= 8
for (var j = 0, k = 10; j < k; j += 3, k -= 3) trace(j + ":" + k); //= 0:10
                   //= 3:7
outer = 0;
for (var a = 0; a < 3; a++) {
  for (var b = 0; b < 3; b++) {
    if (b == 1) continue;
    if (a == 2) break;
    outer += a * 10 + b;
  }
}
trace(outer);      //= 24
function sw(v) {
  switch (v) {
    case 1: trace("one");
    case 2: trace("two"); break;
    case "x": return "ex";
    default: trace("default");
    case 3: trace("three");
  }
  return "end";
}
trace(sw(1));      //= one
                   //= two
                   //= end
trace(sw(2));      //= two
                   //= end
trace(sw("x"));    //= ex
trace(sw(9));      //= default
                   //= three
                   //= end
trace(sw("1"));    //=5-5 one
                   //=5-5 two
                   //=6+ default
                   //=6+ three
                   //= end
function two() { trace("called"); return 2; }
switch (two()) { case 1 + 0: trace("no"); break; case two(): trace("yes"); break; case two(): trace("no"); } //= called
                   //= called
                   //= yes
switch (5) { default: trace("only"); } //= only
for (var n = 0; n < 4; n++) {
  switch (n) { case 1: continue; case 2: break; }
  trace("n" + n);  //= n0
}                  //= n2
                   //= n3
if (false) trace("never");
while (false) trace("never");
if (true) { trace("always"); } else { trace("never"); } //= always
{ trace("block"); } //= block
;
function early() { return 5; trace("never"); }
trace(early());    //= 5
function chain(n) { if (n == 1) return "a"; else if (n == 2) { return "b"; } else return "c"; }
trace(chain(1) + chain(2) + chain(3)); //= abc
function pick(n) { return n > 1 ? n > 2 ? "many" : "two" : "one"; }
trace(pick(1) + pick(2) + pick(3)); //= onetwomany
