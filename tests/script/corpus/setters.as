// versions: 6-8
// What assignments give when getting and setting call functions that work with registers too.
function busy() { var o = {}; for (var k in {a: 1, b: 2}) o[k + "x"] = o["q" + k] = k; o["ax"] += o["bx"]++; return o.z = 0; }
o = {v: 5};
o.addProperty("p", function () { busy(); return this.v; }, function (v) { busy(); this.v = v; });
function self() { busy(); return o; }
function key() { busy(); return "p"; }
trace((o.p = 7) + "," + o.v);              //= 7,7
trace((o["p"] = 8) + "," + o.v);           //= 8,8
trace((self()[key()] = 9) + "," + o.v);    //= 9,9
trace((o.p += 2) + "," + o.v);             //= 11,11
trace((self().p -= 1) + "," + o.v);        //= 10,10
trace((o["p"] *= 2) + "," + o.v);          //= 20,20
trace((self()[key()] /= 4) + "," + o.v);   //= 5,5
trace(o.p++ + "," + o.v);                  //= 5,6
trace(self().p-- + "," + o.v);             //= 6,5
trace(++o.p + "," + o.v);                  //= 6,6
trace(o[key()]++ + "," + o.v);             //= 6,7
trace(self()[key()]-- + "," + o.v);        //= 7,6
trace(--self()[key()] + "," + o.v);        //= 5,5
self()[key()]++; self()[key()] += 3; o[key()] -= 1; trace(o.v); //= 8
this.addProperty("q", function () { busy(); return w; }, function (v) { busy(); w = v; });
trace((q = 3) + "," + (q += 4) + "," + q++ + "," + --q + "," + w); //= 3,7,7,7,7
trace((eval("q") = 4) + "," + (eval("q") += 1) + "," + eval("q")++ + "," + eval("o.p")-- + "," + w + o.v); //= 4,5,5,8,67
function inside() { var r = []; r.push(o.p = 1, self()[key()] += 1, o["p"]++, q -= 5, o.v); return r; }
trace(inside());                           //= 1,9,7,1,7
this.addProperty("busyObject", function () { busy(); return w; }, null);
w = {}; for (busyObject.x in {a: 1}) trace(w.x); //= a
